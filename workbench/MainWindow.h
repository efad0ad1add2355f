// The workbench's window, playing the host: the plug-in's menus and buttons
// and a toolbar of its designated commands, greyed as their access callbacks
// say; the session's models, one of which is current, with its component
// tree; the host's message area and its trail file. Its timer drives the
// window-less timers of the process.
#pragma once

#include <QMainWindow>

#include <string>
#include <vector>

class QAction;
class QListWidget;
class QPlainTextEdit;
class QTreeWidget;

class MainWindow : public QMainWindow {
 public:
  MainWindow();

  // Runs a command's action as a click on its button would.
  bool RunCommand(const std::string& actionName);
  // The model of the session's file name becomes current; false for none.
  bool MakeCurrent(const std::wstring& fileName);

 private:
  void BuildMenus();
  void BuildToolbar();
  void RefreshAccess();
  void RefreshModels();
  void RefreshTree();
  void RefreshTexts();
  void OnTick();

  // Each action bound to a command of the plug-in, by its action name.
  std::vector<std::pair<QAction*, std::string>> commandActions_;
  QListWidget* models_;
  QTreeWidget* tree_;
  QPlainTextEdit* messages_;
  QPlainTextEdit* trail_;
  std::string shownTrail_;
  size_t shownMessages_ = 0;
};
