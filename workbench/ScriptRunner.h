// Plays a script of user steps on the plug-in's windows from the Qt event
// loop, one step after the other, so that a step can act on the modal dialog
// the step before it opened. Prints each step as it runs it, each question
// and chooser with its answer, and what `dump` and `model` show.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "Script.h"

class QWidget;

struct PlayOptions {
  std::wstring scriptName;  // the file, for messages
  // How long a step waits for its window or control before it fails.
  int waitMs = 5000;
  // The host's own window, which scripts never act on.
  const QWidget* hostWindow = nullptr;
  // What "$SESSION" and "$WORKDIR" at the start of an answer's path stand
  // for, so that a script names the session's files wherever it is played.
  std::wstring sessionDir;
  std::wstring workDir;
};

// Runs the steps in the running QApplication: 0 when every step ran; 1 when
// one could not, with the script's line, the step and the reason on `err`.
// Windows the script left open are closed at the end.
int PlayScript(const std::vector<ScriptStep>& steps, const PlayOptions& options, std::ostream& out,
               std::ostream& err);
