#include "ItemViews.h"

#include <QAbstractItemView>
#include <QListView>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace {

QString CellText(const QAbstractItemView* view, int row, int col) {
  return view->model()->index(row, col).data(Qt::DisplayRole).toString();
}

bool IsNumber(const std::wstring& text) {
  return !text.empty() && text.size() <= 9 && text.find_first_not_of(L"0123456789") == std::wstring::npos;
}

std::wstring RowCountText(int count) {
  return L"the list has " + std::to_wstring(count) + (count == 1 ? L" row" : L" rows");
}

}  // namespace

CellAddress AddressOf(QAbstractItemView* view, const std::wstring& row, const std::wstring& column) {
  CellAddress address;
  QAbstractItemModel* model = view->model();
  int rows = model->rowCount();
  if (!IsNumber(row) || std::stoi(row) < 1 || std::stoi(row) > rows) {
    address.error = L"no row " + row + L": " + RowCountText(rows);
    return address;
  }
  address.row = std::stoi(row) - 1;
  if (column.empty()) return address;
  int cols = model->columnCount();
  if (IsNumber(column)) {
    address.col = std::stoi(column) - 1;
    if (address.col < 0 || address.col >= cols) address.error = L"no column " + column;
    return address;
  }
  std::vector<int> matches;
  for (int col = 0; col < cols; ++col) {
    if (model->headerData(col, Qt::Horizontal).toString().toStdWString() == column) matches.push_back(col);
  }
  if (matches.size() != 1) {
    address.error = (matches.empty() ? L"no column " : L"more than one column ") + column;
    return address;
  }
  address.col = matches[0];
  return address;
}

std::optional<std::vector<int>> RowsOf(QAbstractItemView* view, const std::wstring& rows,
                                       std::wstring& error) {
  int count = view->model()->rowCount();
  std::vector<int> chosen;
  size_t start = 0;
  while (start <= rows.size()) {
    size_t comma = rows.find(L',', start);
    std::wstring piece = rows.substr(start, comma == std::wstring::npos ? std::wstring::npos : comma - start);
    size_t dash = piece.find(L'-');
    std::wstring first = piece.substr(0, dash);
    std::wstring last = dash == std::wstring::npos ? first : piece.substr(dash + 1);
    if (!IsNumber(first) || !IsNumber(last) || std::stoi(first) > std::stoi(last) || std::stoi(first) < 1) {
      error = L"rows are written 2, 2,5 or 2-5, not " + rows;
      return std::nullopt;
    }
    if (std::stoi(last) > count) {
      error = L"no row " + last + L": " + RowCountText(count);
      return std::nullopt;
    }
    for (int row = std::stoi(first); row <= std::stoi(last); ++row) chosen.push_back(row - 1);
    if (comma == std::wstring::npos) break;
    start = comma + 1;
  }
  std::ranges::sort(chosen);
  chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
  return chosen;
}

std::vector<std::wstring> DumpLines(QAbstractItemView* view) {
  QAbstractItemModel* model = view->model();
  bool listBox = qobject_cast<QListView*>(view) != nullptr;
  std::vector<std::wstring> lines;
  std::wstring header;
  for (int col = 0; !listBox && col < model->columnCount(); ++col) {
    if (col > 0) header += L'\t';
    header += model->headerData(col, Qt::Horizontal).toString().toStdWString();
  }
  lines.push_back(header);
  for (int row = 0; row < model->rowCount(); ++row) {
    std::wstring line = !HasCheckBox(view, row) ? L"[-]" : IsChecked(view, row) ? L"[x]" : L"[ ]";
    for (int col = 0; col < model->columnCount(); ++col)
      line += L'\t' + CellText(view, row, col).toStdWString();
    lines.push_back(line);
  }
  return lines;
}

bool HasCheckBox(QAbstractItemView* view, int row) {
  QModelIndex index = view->model()->index(row, 0);
  return (view->model()->flags(index) & Qt::ItemIsUserCheckable) && index.data(Qt::CheckStateRole).isValid();
}

bool IsChecked(QAbstractItemView* view, int row) {
  return view->model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

QPoint CheckPoint(QAbstractItemView* view, int row) {
  QModelIndex index = view->model()->index(row, 0);
  view->scrollTo(index);
  // Where the item delegate looks for the check box when it handles a click.
  QStyleOptionViewItem option;
  option.initFrom(view);
  option.rect = view->visualRect(index);
  option.features |= QStyleOptionViewItem::HasCheckIndicator;
  option.checkState = static_cast<Qt::CheckState>(index.data(Qt::CheckStateRole).toInt());
  option.text = index.data(Qt::DisplayRole).toString();
  if (!index.data(Qt::DecorationRole).isNull()) option.features |= QStyleOptionViewItem::HasDecoration;
  option.features |= QStyleOptionViewItem::HasDisplay;
  option.decorationSize = view->iconSize();
  const QWidget* widget = view;
  return view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, widget).center();
}

QPoint CellPoint(QAbstractItemView* view, int row, int col) {
  QModelIndex index = view->model()->index(row, col);
  view->scrollTo(index);
  QRect rect = view->visualRect(index);
  if (!HasCheckBox(view, row) || col != 0) return rect.center();
  // Right of the check box and the icon, on the text.
  int textLeft = CheckPoint(view, row).x() + view->iconSize().width() + 8;
  return {std::min(std::max(rect.center().x(), textLeft), rect.right() - 1), rect.center().y()};
}

QModelIndex TreeItem(QAbstractItemView* tree, const std::wstring& path, std::wstring& error) {
  QAbstractItemModel* model = tree->model();
  QModelIndex parent;
  size_t start = 0;
  while (true) {
    size_t slash = path.find(L'/', start);
    std::wstring text = path.substr(start, slash == std::wstring::npos ? std::wstring::npos : slash - start);
    QModelIndex found;
    for (int row = 0; row < model->rowCount(parent); ++row) {
      QModelIndex child = model->index(row, 0, parent);
      if (child.data(Qt::DisplayRole).toString().toStdWString() == text) {
        found = child;
        break;
      }
    }
    if (!found.isValid()) {
      error = L"no tree item " + path.substr(0, slash);
      return {};
    }
    if (slash == std::wstring::npos) return found;
    parent = found;
    start = slash + 1;
  }
}
