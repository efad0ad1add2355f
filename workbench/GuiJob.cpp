#include "GuiJob.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTimer>

#include <iostream>
#include <memory>
#include <optional>

#include "ControlFinder.h"
#include "FileDialog.h"
#include "HostChoosers.h"
#include "MainWindow.h"
#include "MessageBox.h"
#include "QtApplication.h"
#include "QtFileDialog.h"
#include "QtMessageBox.h"

namespace {

constexpr int kWatchMs = 50;

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

// A modal dialog that only shows progress is at work and closes itself; any
// other waits for the user.
bool WaitsForTheUser(QWidget* modal) { return qobject_cast<QDialog*>(modal) && !ShowsProgressOnly(modal); }

bool SaveScreenshot(QWidget* main, const std::string& file) {
  if (GrabWindows(main).save(QString::fromStdString(file), "PNG")) return true;
  std::cerr << "bom-workbench: cannot write " << file << "\n";
  return false;
}

}  // namespace

int RunGui(const GuiOptions& options, int argc, char* argv[]) {
  std::unique_ptr<QApplication> app = StartQtApplication(argc, argv);
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
  // Nobody answers a dialog that an action opens and waits on: the picture is
  // taken as it shows, then every such dialog is cancelled so that the
  // actions come back, and the actions left are not run.
  std::optional<bool> saved;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    QWidget* modal = QApplication::activeModalWidget();
    if (!WaitsForTheUser(modal)) return;
    if (!saved) saved = SaveScreenshot(&window, options.screenshot);
    static_cast<QDialog*>(modal)->reject();
  });
  if (!options.screenshot.empty()) watch.start(kWatchMs);
  for (const std::string& action : options.run) {
    if (saved) break;
    if (!window.RunCommand(action)) {
      std::cerr << "bom-workbench: no such command: " << action << "\n";
      return 1;
    }
  }
  if (options.screenshot.empty()) return app->exec();
  watch.stop();
  if (!saved) {
    QApplication::processEvents();
    saved = SaveScreenshot(&window, options.screenshot);
  }
  return *saved ? 0 : 1;
}
