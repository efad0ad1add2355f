// The workbench's Qt application, made one way for every job that starts Qt.
#pragma once

#include <memory>

class QApplication;

// Starts the application on Qt's offscreen platform when there is no display
// and QT_QPA_PLATFORM chooses none, with Qt's own texts (standard buttons,
// file and directory choosers) in Chinese from Qt's installed translations,
// as the host's users see them. `argc` and `argv` outlive the application.
std::unique_ptr<QApplication> StartQtApplication(int& argc, char* argv[]);
