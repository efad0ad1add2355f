// The job "play": a script of user steps run on the plug-in's dialogs
// without a window on the screen.
#pragma once

#include <filesystem>
#include <ostream>

// Makes the application (offscreen without a display), reads the script and
// plays it: 0 when every step ran, 1 when one could not or the script cannot
// be read, the reason on `err`.
// "$SESSION" and "$WORKDIR" in an answer's path stand for `session` and
// `workdir`, made absolute.
int RunPlayJob(const std::filesystem::path& script, const std::filesystem::path& session,
               const std::filesystem::path& workdir, std::ostream& out, std::ostream& err, int argc,
               char* argv[]);
