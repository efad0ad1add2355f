// The host's own choosers in the window: a directory or a model file asked
// of the user in a file dialog, a point of the drawing in a dialog of its
// own, when no scripted answer is queued.
#pragma once

// Needs a QApplication. Until RemoveHostChoosers, choosers ask the user.
void InstallHostChoosers();
void RemoveHostChoosers();
