// A new drawing named after the current model, started through the host's
// own new-model dialog, which the user confirms there.
#pragma once

#include <string>

// The macro that opens the host's new-model dialog with the type Drawing
// chosen and `name` filled in.
std::wstring NewDrawingMacro(const std::wstring& name);

// Loads that macro for the current model; without one, or without its name,
// nothing happens. 0 in every case.
int NewDrawing();
