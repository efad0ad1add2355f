#include "QtFileDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>

#include "FileDialog.h"

namespace {

// "Worksheet Files (*.xls)|*.xls||" becomes "Worksheet Files (*.xls)": Qt
// reads the patterns from the parentheses at the end of each entry, so a
// description's own pattern list gives way to the patterns of its pair.
QString QtNameFilters(const std::wstring& windowsFilter) {
  static const QRegularExpression trailingPatterns(R"(\s*\([^()]*\)\s*$)");
  QStringList parts = QString::fromStdWString(windowsFilter).split('|');
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size() && !parts[i].isEmpty(); i += 2) {
    QString description = parts[i];
    description.remove(trailingPatterns);
    QString patterns = parts[i + 1].split(';', Qt::SkipEmptyParts).join(' ');
    entries.push_back(description + " (" + patterns + ")");
  }
  return entries.join(";;");
}

std::optional<std::wstring> AskFileToOpen(const platform::FileOpenRequest& request) {
  QWidget* parent = request.parent ? static_cast<QWidget*>(request.parent) : QApplication::activeWindow();
  QFileDialog dialog(parent, QString(), QString::fromStdWString(request.initialDir),
                     QtNameFilters(request.filter));
  dialog.setObjectName("FileOpenDialog");
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().front().toStdWString();
}

}  // namespace

void InstallQtFileDialogHandler() { platform::SetFileOpenHandler(AskFileToOpen); }
