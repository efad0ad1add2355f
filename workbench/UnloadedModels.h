// The models that the session's assemblies and drawings name but that the
// simulated host could not find or read, as the workbench tells the user:
// at start on standard error and in the window's message area, and counted
// at the end of a job.
#pragma once

#include <string>
#include <vector>

// One line per model: "could not load gone.prt: <where and why>".
std::vector<std::string> UnloadedModelLines();

// "2 models could not be loaded"; empty when every model could.
std::string UnloadedCountLine();
