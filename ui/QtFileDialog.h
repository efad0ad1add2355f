// The file chooser of a windowed host: every platform request for a file to
// open becomes a Qt file dialog, its filter turned into Qt's form.
#pragma once

// Needs a QApplication, and requests come on its thread; the request's
// parent, when given, is the asking QWidget. Replaces whatever handler was
// installed.
void InstallQtFileDialogHandler();
