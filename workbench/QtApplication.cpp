#include "QtApplication.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdlib>

namespace {

bool HasDisplay() { return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"); }

}  // namespace

std::unique_ptr<QApplication> StartQtApplication(int& argc, char* argv[]) {
  if (!HasDisplay() && !std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  auto app = std::make_unique<QApplication>(argc, argv);
  // Without the catalogue Qt keeps its English texts; the jobs still run.
  auto* translator = new QTranslator(app.get());
  if (translator->load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(translator);
  return app;
}
