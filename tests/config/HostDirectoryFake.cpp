// The configuration layer never asks the host for its working directory, but
// the file helpers it links carry those calls. These tests run without a host
// session, so the calls are answered here as a host without one would.
#include "ProUtil.h"

extern "C" ProError ProDirectoryCurrentGet(ProPath) { return PRO_TK_GENERAL_ERROR; }
extern "C" ProError ProDirectoryChange(ProPath) { return PRO_TK_GENERAL_ERROR; }
