// The drop-down box a list opens over a combo cell. It commits by losing the
// focus: it hands its text to the list and deletes itself.
#pragma once

#include <QComboBox>

#include <string>
#include <vector>

#include "ListCtrlEx.h"

class CITPComboBox : public QComboBox {
  Q_OBJECT

 public:
  // A child of `list` holding the choices of column `col` from `columns`,
  // with the cell's text selected if it is one of them.
  CITPComboBox(CListCtrlEx* list, int row, int col, const std::wstring& cellText,
               const std::vector<ComboColumn>& columns);

 protected:
  void focusOutEvent(QFocusEvent* event) override;

 private:
  CListCtrlEx* list_;  // not owned: the parent
  int row_;
  int col_;
  std::wstring cellText_;
  std::vector<ComboColumn> comboCols_;
  bool ended_ = false;
};
