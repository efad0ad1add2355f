// The prompt service of a windowed host: every platform message box becomes
// a Qt message box on the UI thread, also when a worker thread asks.
#pragma once

// Needs a QApplication; replaces whatever handler was installed.
void InstallQtMessageBoxHandler();
