// The action callbacks of the commands, as the host calls them.
#pragma once

#include "ProUICmd.h"

// For commands whose tool is not part of the plug-in yet: a click does nothing.
int NotYetAvailable(uiCmdCmdId, uiCmdValue*, void*);

int OpenWorkDirectory(uiCmdCmdId, uiCmdValue*, void*);
