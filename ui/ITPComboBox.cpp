#include "ITPComboBox.h"

#include <QFocusEvent>

namespace {
// The control number the box is created with.
constexpr int kComboControlId = 65521;
}  // namespace

CITPComboBox::CITPComboBox(CListCtrlEx* list, int row, int col, const std::wstring& cellText,
                           const std::vector<ComboColumn>& columns)
    : QComboBox(list), list_(list), row_(row), col_(col), cellText_(cellText), comboCols_(columns) {
  setObjectName(QString("ITPComboBox%1").arg(kComboControlId));
  setEditable(false);
  setFont(list->font());
  for (const ComboColumn& column : comboCols_) {
    if (column.col != col_) continue;
    for (const std::wstring& choice : column.items) addItem(QString::fromStdWString(choice));
  }
  setCurrentIndex(findText(QString::fromStdWString(cellText_), Qt::MatchExactly));
}

void CITPComboBox::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  // The open drop-down list takes the focus without ending the choice.
  if (event->reason() == Qt::PopupFocusReason || ended_) return;
  ended_ = true;
  std::wstring text = currentText().toStdWString();
  list_->OnLabelEditEnded(row_, col_, &text);
  deleteLater();
}
