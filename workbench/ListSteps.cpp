#include "ListSteps.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>

#include <map>

#include "CodePage.h"
#include "ControlFinder.h"
#include "ItemViews.h"
#include "TextEntry.h"

namespace {

using Fields = std::vector<std::wstring>;

ListStepResult Ok() { return {}; }
ListStepResult Error(std::wstring error) { return {std::move(error), false}; }
ListStepResult Usage(const wchar_t* usage) { return Error(std::wstring(L"usage: ") + usage); }

// A click on a row goes to a cell clear of its check box: the second column
// where there is one.
int RowClickColumn(QAbstractItemView* view) { return view->model()->columnCount() > 1 ? 1 : 0; }

void Click(QAbstractItemView* view, const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = {}) {
  QTest::mouseClick(view->viewport(), button, modifiers, point);
}

// The events a double click gives on the desktop: press, release, double
// click, release.
void DoubleClick(QAbstractItemView* view, const QPoint& point) {
  QWidget* viewport = view->viewport();
  QTest::mousePress(viewport, Qt::LeftButton, {}, point);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, point);
  QMouseEvent twice(QEvent::MouseButtonDblClick, point, viewport->mapToGlobal(point), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(viewport, &twice);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, point);
}

ListStepResult AddressError(const CellAddress& address) { return {address.error, true}; }

ListStepResult Check(QAbstractItemView* view, const Fields& fields) {
  if (fields.size() != 4 || (fields[3] != L"on" && fields[3] != L"off"))
    return Usage(L"check LIST ROW on|off");
  CellAddress address = AddressOf(view, fields[2], L"");
  if (!address.error.empty()) return AddressError(address);
  if (!HasCheckBox(view, address.row)) return Error(L"row " + fields[2] + L" has no check box");
  bool wanted = fields[3] == L"on";
  if (IsChecked(view, address.row) == wanted) return Ok();
  Click(view, CheckPoint(view, address.row));
  if (IsChecked(view, address.row) != wanted)
    return Error(L"the check box of row " + fields[2] + L" did not change");
  return Ok();
}

ListStepResult Select(QAbstractItemView* view, const Fields& fields) {
  if (fields.size() != 3) return Usage(L"select LIST ROWS");
  std::wstring error;
  std::optional<std::vector<int>> rows = RowsOf(view, fields[2], error);
  if (!rows) return {error, true};
  view->clearSelection();
  for (int row : *rows)
    Click(view, CellPoint(view, row, RowClickColumn(view)), Qt::LeftButton, Qt::ControlModifier);
  return Ok();
}

ListStepResult DoubleClickStep(QAbstractItemView* view, const Fields& fields) {
  if (fields.size() != 3 && fields.size() != 4) return Usage(L"dblclick LIST ROW [COLUMN]");
  CellAddress address = AddressOf(view, fields[2], fields.size() == 4 ? fields[3] : L"");
  if (!address.error.empty()) return AddressError(address);
  int col = fields.size() == 4 ? address.col : RowClickColumn(view);
  DoubleClick(view, CellPoint(view, address.row, col));
  return Ok();
}

// The field or drop-down the list opened over a cell.
template <typename Widget>
Widget* OpenEditor(QAbstractItemView* view) {
  for (Widget* widget : view->findChildren<Widget*>()) {
    if (widget->isVisible()) return widget;
  }
  return nullptr;
}

ListStepResult Edit(QAbstractItemView* view, const Fields& fields) {
  if (fields.size() != 5) return Usage(L"edit LIST ROW COLUMN TEXT");
  CellAddress address = AddressOf(view, fields[2], fields[3]);
  if (!address.error.empty()) return AddressError(address);
  QPoint cell = CellPoint(view, address.row, address.col);
  DoubleClick(view, cell);
  QPointer<QComboBox> box = OpenEditor<QComboBox>(view);
  QWidget* field = OpenEditor<QTextEdit>(view);
  if (!field) field = OpenEditor<QLineEdit>(view);
  if (!box && !field)
    return Error(L"the cell of row " + fields[2] + L", column " + fields[3] + L" is not editable");
  if (box && !ChooseEntry(box, fields[4])) {
    std::wstring error = NoEntry(box, fields[4]);
    box->hide();
    box->deleteLater();
    return Error(error);
  }
  if (!box) TypeText(field, fields[4]);
  // The list ends an edit on the next click into it; a drop-down ends when
  // the focus leaves it, which that click does in a window that has focus.
  if (box) QApplication::setActiveWindow(view->window());
  Click(view, cell);
  if (box && box->isVisible()) {
    QFocusEvent focusOut(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(box, &focusOut);
  }
  QApplication::sendPostedEvents();
  return Ok();
}

ListStepResult ContextMenu(QAbstractItemView* view, const Fields& fields) {
  if (fields.size() != 4) return Usage(L"menu LIST ROW ENTRY");
  CellAddress address = AddressOf(view, fields[2], L"");
  if (!address.error.empty()) return AddressError(address);
  const std::wstring& entry = fields[3];
  bool opened = false;
  std::wstring error;
  // The menu runs its own loop: the entry is chosen from inside it.
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    poll.stop();
    opened = true;
    std::wstring entries;
    for (QAction* action : menu->actions()) {
      if (action->isSeparator()) continue;
      if (SameCaption(action->text().toStdWString(), entry) && action->isEnabled()) {
        // Highlighted and taken with the Enter key, as from the keyboard.
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        if (menu->isVisible()) {
          error = L"the entry " + entry + L" did not end the menu";
          menu->close();
        }
        return;
      }
      entries += (entries.empty() ? L"" : L", ") + action->text().toStdWString();
    }
    error = L"no entry " + entry + L" in the menu (" + entries + L")";
    menu->close();
  });
  poll.start(5);
  Click(view, CellPoint(view, address.row, RowClickColumn(view)), Qt::RightButton);
  poll.stop();
  if (!opened) return Error(L"no menu opened on row " + fields[2]);
  return error.empty() ? Ok() : Error(error);
}

ListStepResult Dump(QAbstractItemView* view, const Fields& fields, std::ostream& out) {
  if (fields.size() != 2) return Usage(L"dump LIST");
  for (const std::wstring& line : DumpLines(view)) out << platform::ToNarrow(line) << "\n";
  out.flush();
  return Ok();
}

}  // namespace

ListStepResult RunListStep(QAbstractItemView* view, const Fields& fields, std::ostream& out) {
  const std::wstring& step = fields[0];
  if (step == L"check") return Check(view, fields);
  if (step == L"select") return Select(view, fields);
  if (step == L"dblclick") return DoubleClickStep(view, fields);
  if (step == L"edit") return Edit(view, fields);
  if (step == L"menu") return ContextMenu(view, fields);
  return Dump(view, fields, out);
}

std::wstring SelectTreeItem(QAbstractItemView* tree, const std::wstring& path) {
  std::wstring error;
  QModelIndex item = TreeItem(tree, path, error);
  if (!item.isValid()) return error;
  if (auto* view = qobject_cast<QTreeView*>(tree)) {
    for (QModelIndex parent = item.parent(); parent.isValid(); parent = parent.parent()) view->expand(parent);
  }
  tree->scrollTo(item);
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(item).center());
  return {};
}
