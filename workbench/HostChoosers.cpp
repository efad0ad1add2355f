#include "HostChoosers.h"

#include <QApplication>
#include <QFileDialog>

#include "HostControl.h"
#include "Inspection.h"
#include "PickPointDialog.h"

namespace {

std::optional<std::wstring> Chosen(const QString& path) {
  if (path.isEmpty()) return std::nullopt;
  return path.toStdWString();
}

std::optional<std::wstring> Ask(const std::string& callName, const std::wstring& label,
                                const std::wstring& defaultPath) {
  QWidget* parent = QApplication::activeWindow();
  QString caption = QString::fromStdWString(label);
  QString start = QString::fromStdWString(defaultPath);
  if (callName == "ProDirectoryChoose")
    return Chosen(QFileDialog::getExistingDirectory(parent, caption, start));
  if (callName == "ProMousePickGet") return AskPickPoint(parent, sim::Messages().currentLine);
  if (callName == "ProFileMdlfiletypeOpen") {
    return Chosen(QFileDialog::getOpenFileName(parent, caption, start, "模型 (*.prt* *.asm* *.drw*)"));
  }
  return std::nullopt;
}

}  // namespace

void InstallHostChoosers() { sim::SetAnswerProvider(Ask); }

void RemoveHostChoosers() { sim::SetAnswerProvider(nullptr); }
