// "材料清单": the material names in a sorted list filling the dialog, an
// empty entry first. A double click on an entry is the choice and confirms;
// closing the window cancels. No buttons.
#pragma once

#include <QDialog>

#include <string>
#include <vector>

class QListWidget;
class QListWidgetItem;

class CDlgMatList : public QDialog {
 public:
  explicit CDlgMatList(const std::vector<std::wstring>& names, QWidget* parent = nullptr);

  // The entry double-clicked; empty also for the empty entry.
  std::wstring Choice() const { return choice_; }

 private:
  void OnDoubleClick(QListWidgetItem* item);

  QListWidget* list_ = nullptr;
  std::wstring choice_;
};
