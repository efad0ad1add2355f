#include "QtApplication.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace {

bool HasDisplay() { return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"); }

// What Qt would fall back to itself, after a warning on every start.
void EnsureRuntimeDir() {
  if (std::getenv("XDG_RUNTIME_DIR")) return;
  const char* tmp = std::getenv("TMPDIR");
  std::string dir = std::string(tmp && *tmp ? tmp : "/tmp") + "/runtime-" + std::to_string(getuid());
  mkdir(dir.c_str(), 0700);
  struct stat info {};
  if (stat(dir.c_str(), &info) == 0 && info.st_uid == getuid() && (info.st_mode & 0077) == 0)
    setenv("XDG_RUNTIME_DIR", dir.c_str(), 1);
}

QtMessageHandler defaultHandler = nullptr;

// The offscreen platform says so for every window it cannot raise or size:
// nothing a user of a headless job can act on.
void DropOffscreenNotices(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtWarningMsg && message.startsWith(QLatin1String("This plugin does not support"))) return;
  defaultHandler(type, context, message);
}

}  // namespace

std::unique_ptr<QApplication> StartQtApplication(int& argc, char* argv[]) {
  if (!HasDisplay() && !std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  EnsureRuntimeDir();
  if (std::string(std::getenv("QT_QPA_PLATFORM") ? std::getenv("QT_QPA_PLATFORM") : "") == "offscreen")
    defaultHandler = qInstallMessageHandler(DropOffscreenNotices);
  auto app = std::make_unique<QApplication>(argc, argv);
  // Without the catalogue Qt keeps its English texts; the jobs still run.
  auto* translator = new QTranslator(app.get());
  if (translator->load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(translator);
  return app;
}
