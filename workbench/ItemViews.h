// Lists and trees as a user sees and clicks them: rows counted from 1,
// columns by header text or by number from 1, and the points a click goes to.
#pragma once

#include <QPoint>

#include <optional>
#include <string>
#include <vector>

class QAbstractItemView;
class QModelIndex;

struct CellAddress {
  int row = 0;  // from 0
  int col = 0;
  std::wstring error;  // set when the address names no cell
};

// `row` and `column` as a script writes them: "3", and "名称" or "2";
// an empty column is the first.
CellAddress AddressOf(QAbstractItemView* view, const std::wstring& row, const std::wstring& column);

// Rows given as "2", "2,5" or "2-5", from 0 and ascending; nullopt with
// `error` set for a text of another form or a row past the list.
std::optional<std::vector<int>> RowsOf(QAbstractItemView* view, const std::wstring& rows,
                                       std::wstring& error);

// The header line (empty for a list box), then each row: "[x]", "[ ]" or
// "[-]" where the row has no check box, a tab, and the cells tab-separated.
std::vector<std::wstring> DumpLines(QAbstractItemView* view);

// The point of the viewport a click on the cell goes to, the cell scrolled
// into view first: the middle of its text, clear of a check box.
QPoint CellPoint(QAbstractItemView* view, int row, int col);
// The middle of the row's check box.
QPoint CheckPoint(QAbstractItemView* view, int row);

bool HasCheckBox(QAbstractItemView* view, int row);
bool IsChecked(QAbstractItemView* view, int row);

// The tree item reached by item texts joined by "/"; invalid with `error`.
QModelIndex TreeItem(QAbstractItemView* tree, const std::wstring& path, std::wstring& error);
