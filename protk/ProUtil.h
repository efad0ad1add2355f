// Trail file, configuration options, directories.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

extern ProError ProTrailfileCommentWrite(ProComment comment);
extern ProError ProConfigoptionGet(ProName option, ProPath option_value);
extern ProError ProConfigoptSet(ProName option, ProPath option_value);
extern ProError ProDirectoryCurrentGet(ProPath path);
extern ProError ProDirectoryChange(ProPath path);

// Not in the public headers: the run-time hands the application's resource
// directory to the host with it.
extern ProError ProUIResourcepathStore(ProPath resource_path);

PRO_END_C_DECLS
