// The job "gui": the host in a window, the plug-in's dialogs beside it.
#pragma once

#include <string>
#include <vector>

struct GuiOptions {
  std::vector<std::string> run;  // actions run once the window shows, in order
  std::string screenshot;        // when set: the windows saved there as PNG, then exit
};

// Makes the application, shows the window and runs its event loop; the exit
// code.
int RunGui(const GuiOptions& options, int argc, char* argv[]);
