// The job "gui": the host in a window, the plug-in's dialogs beside it.
#pragma once

#include <string>
#include <vector>

struct GuiOptions {
  std::vector<std::string> run;  // actions run once the window shows, in order
  // When set: the windows saved there as PNG once the actions ran or a
  // dialog waits for the user, then exit.
  std::string screenshot;
};

// Makes the application, shows the window and runs its event loop; the exit
// code.
int RunGui(const GuiOptions& options, int argc, char* argv[]);
