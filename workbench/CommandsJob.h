// The job "commands": the menus the plug-in registered, and for each of its
// actions whether the host may offer it now.
#pragma once

#include <ostream>

void PrintCommands(std::ostream& out);
