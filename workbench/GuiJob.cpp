#include "GuiJob.h"

#include <QApplication>
#include <QPainter>

#include <iostream>

#include "FileDialog.h"
#include "HostChoosers.h"
#include "MainWindow.h"
#include "MessageBox.h"
#include "QtFileDialog.h"
#include "QtMessageBox.h"

namespace {

// The main window with the plug-in's visible windows to its right, as they
// stand beside it on a screen.
QImage GrabWindows(QWidget* main) {
  std::vector<QPixmap> shots{main->grab()};
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget != main && widget->isVisible() && widget->isWindow()) shots.push_back(widget->grab());
  }
  int width = 0;
  int height = 0;
  for (const QPixmap& shot : shots) {
    width += shot.width();
    height = std::max(height, shot.height());
  }
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(QColor(0x80, 0x80, 0x80));
  QPainter painter(&image);
  int x = 0;
  for (const QPixmap& shot : shots) {
    painter.drawPixmap(x, 0, shot);
    x += shot.width();
  }
  return image;
}

}  // namespace

int RunGui(const GuiOptions& options, int argc, char* argv[]) {
  QApplication app(argc, argv);
  InstallQtMessageBoxHandler();
  InstallQtFileDialogHandler();
  InstallHostChoosers();
  // The choosers and boxes live no longer than the application.
  struct Uninstall {
    ~Uninstall() {
      RemoveHostChoosers();
      platform::SetMessageBoxHandler(nullptr);
      platform::SetFileOpenHandler(nullptr);
    }
  } uninstall;
  MainWindow window;
  window.show();
  for (const std::string& action : options.run) {
    if (!window.RunCommand(action)) {
      std::cerr << "bom-workbench: no such command: " << action << "\n";
      return 1;
    }
  }
  if (options.screenshot.empty()) return app.exec();
  QApplication::processEvents();
  if (!GrabWindows(&window).save(QString::fromStdString(options.screenshot), "PNG")) {
    std::cerr << "bom-workbench: cannot write " << options.screenshot << "\n";
    return 1;
  }
  return 0;
}
