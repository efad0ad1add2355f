// Parts.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

extern ProError ProPartDensityGet(ProPart part, double* density);

PRO_END_C_DECLS
