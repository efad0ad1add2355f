// The simulated host started as the options say: working directory, the
// plug-in's application record, the session and its current model.
#pragma once

#include <string>

#include "Options.h"

// The host's language code for simplified Chinese.
constexpr int kHostLanguage = 1;

// False with `error` set when the session or the named model cannot be had.
// Each model the session names but the host could not load goes to standard
// error.
bool StartHostSession(const WorkbenchOptions& options, std::string& error);
