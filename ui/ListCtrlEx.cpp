#include "ListCtrlEx.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTextEdit>

#include <algorithm>

#include "ITPComboBox.h"
#include "ImageStrip.h"
#include "ListSort.h"

namespace {

constexpr QRgb kOddRowColour = 0xE6E6E6;
constexpr int kMinComboColumnWidth = 5;
// Check box and image drawn small and close, so that a row number of three
// digits still reads whole in a first column of 50 pixels.
constexpr int kCheckSize = 10;
constexpr int kImageSize = 12;
constexpr int kCellItemMargin = -1;  // plus the one pixel Qt adds: none

// A cell that sorts by the narrow-code-page text.
class SortTextItem : public QTableWidgetItem {
 public:
  using QTableWidgetItem::QTableWidgetItem;
  QTableWidgetItem* clone() const override { return new SortTextItem(*this); }
  bool operator<(const QTableWidgetItem& other) const override {
    return CompareListText(text().toStdWString(), other.text().toStdWString()) < 0;
  }
};

// Every odd row, counted from 0, on a grey background.
class ShadedRowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.row() % 2 == 1) option->backgroundBrush = QColor(kOddRowColour);
  }
};

// The application's style, with the check box and the margins of the cells'
// parts made compact. Set on the list alone: its header, scroll bars and
// edit fields keep the application's.
class CompactCellStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
        return kCheckSize;
      case PM_FocusFrameHMargin:
        return kCellItemMargin;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }
};

// One for all lists, owned by the application: a later application makes
// its own.
QStyle* CompactStyle() {
  static QPointer<QStyle> style;
  if (!style) {
    style = new CompactCellStyle(QStyleFactory::create(QApplication::style()->name()));
    style->setParent(qApp);
  }
  return style;
}

}  // namespace

CListCtrlEx::CListCtrlEx(QWidget* parent) : QTableWidget(parent) {
  setShowGrid(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSortingEnabled(false);
  setStyle(CompactStyle());
  setIconSize(QSize(kImageSize, kImageSize));
  setItemPrototype(new SortTextItem);
  setItemDelegate(new ShadedRowDelegate(this));
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(20);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setMinimumSectionSize(0);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setStretchLastSection(false);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &CListCtrlEx::SortByColumn);
}

CListCtrlEx::~CListCtrlEx() { qDeleteAll(findChildren<CITPComboBox*>()); }

void CListCtrlEx::SetEditMode(int mode, const std::vector<int>& fixedCols, const std::vector<int>& editCols) {
  mode_ = mode;
  switch (mode) {
    case 0:
      fixedCols_ = fixedCols;
      editCols_.clear();
      break;
    case 1:
      fixedCols_.clear();
      editCols_ = editCols;
      break;
    case 3:
    case 4:
      fixedCols_ = fixedCols;
      editCols_ = editCols;
      break;
    default:
      break;
  }
}

void CListCtrlEx::SetComboColumns(const std::vector<ComboColumn>& columns) { comboCols_ = columns; }

void CListCtrlEx::EnableSort(int flag) { sortEnabled_ = flag; }

void CListCtrlEx::InsertColumn(int col, const std::wstring& name, int width) {
  insertColumn(col);
  auto* header = new QTableWidgetItem(QString::fromStdWString(name));
  header->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setHorizontalHeaderItem(col, header);
  setColumnWidth(col, width);
}

void CListCtrlEx::InsertItem(int row, const std::wstring& text, int image) {
  insertRow(row);
  QTableWidgetItem* item = CellItem(row, 0);
  item->setText(QString::fromStdWString(text));
  if (checkBoxes_) {
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
  if (image >= 0) item->setIcon(ListImage(image));
}

void CListCtrlEx::SetItemText(int row, int col, const std::wstring& text) {
  if (row < 0 || row >= rowCount() || col < 0 || col >= columnCount()) return;
  CellItem(row, col)->setText(QString::fromStdWString(text));
}

std::wstring CListCtrlEx::GetItemText(int row, int col) const {
  const QTableWidgetItem* cell = item(row, col);
  return cell ? cell->text().toStdWString() : std::wstring();
}

void CListCtrlEx::SetItemImage(int row, int col, int image) {
  if (row < 0 || row >= rowCount() || col < 0 || col >= columnCount()) return;
  CellItem(row, col)->setIcon(ListImage(image));
}

void CListCtrlEx::SetCheck(int row, bool checked) {
  if (row < 0 || row >= rowCount()) return;
  CellItem(row, 0)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

bool CListCtrlEx::GetCheck(int row) const {
  const QTableWidgetItem* cell = item(row, 0);
  return cell && cell->checkState() == Qt::Checked;
}

void CListCtrlEx::DeleteItem(int row) { removeRow(row); }

void CListCtrlEx::DeleteAllItems() { setRowCount(0); }

std::vector<int> CListCtrlEx::GetSelectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
  std::ranges::sort(rows);
  return rows;
}

int CListCtrlEx::HitTestRow(const QPoint& viewportPos) const {
  QModelIndex index = indexAt(viewportPos);
  return index.isValid() ? index.row() : -1;
}

QTableWidgetItem* CListCtrlEx::CellItem(int row, int col) {
  QTableWidgetItem* cell = item(row, col);
  if (!cell) {
    cell = new SortTextItem;
    setItem(row, col, cell);
  }
  return cell;
}

void CListCtrlEx::mouseDoubleClickEvent(QMouseEvent* event) {
  QPoint pos = event->position().toPoint();
  if (mode_ == kModeEditColumns) {
    for (int col : editCols_) BeginTextEdit(pos, col);
  }
  QModelIndex index = indexAt(pos);
  if (index.isValid() &&
      std::ranges::any_of(comboCols_, [&](const ComboColumn& c) { return c.col == index.column(); })) {
    OpenComboBox(index.row(), index.column());
  }
  // Qt's own handling may turn the double click into a press, which must not
  // end the edit just begun.
  passingDoubleClickOn_ = true;
  QTableWidget::mouseDoubleClickEvent(event);
  passingDoubleClickOn_ = false;
}

void CListCtrlEx::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !passingDoubleClickOn_) EndTextEdit();
  QTableWidget::mousePressEvent(event);
}

void CListCtrlEx::BeginTextEdit(const QPoint& pos, int col) {
  QModelIndex index = indexAt(pos);
  if (!index.isValid() || index.column() != col) return;
  editRow_ = index.row();
  editCol_ = col;
  if (!editField_) {
    // A child of the list, not of its viewport: scrolling moves the cells
    // but leaves the field where it was opened.
    editField_ = new QTextEdit(this);
    editField_->setObjectName("ListEditField");
    editField_->setAcceptRichText(false);
    editField_->setLineWrapMode(QTextEdit::NoWrap);
    editField_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    editField_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    editField_->setFont(font());
  }
  QRect rect = visualRect(index).translated(viewport()->pos());
  rect.setBottom(rect.bottom() + 10);
  rect.setRight(rect.right() - 15);
  editField_->setGeometry(rect);
  editField_->setPlainText(QString::fromStdWString(GetItemText(editRow_, editCol_)));
  editField_->show();
  editField_->raise();
  editField_->selectAll();
  editField_->setFocus();
}

void CListCtrlEx::EndTextEdit() {
  if (editField_) editField_->hide();
  if (editRow_ >= 0 && editRow_ < rowCount()) {
    SetItemText(editRow_, editCol_, editField_->toPlainText().toStdWString());
    QMetaObject::invokeMethod(
        this, [this, row = editRow_, col = editCol_] { emit CellEditEnded(row, col); }, Qt::QueuedConnection);
  }
  editRow_ = -1;
  editCol_ = -1;
}

void CListCtrlEx::OpenComboBox(int row, int col) {
  if (row < 0 || row >= rowCount()) return;
  if (col >= columnCount()) return;
  if (columnWidth(col) < kMinComboColumnWidth) return;
  // Brings the row and the column's left edge into the client area.
  scrollTo(model()->index(row, col));
  QRect cell = visualRect(model()->index(row, col)).translated(viewport()->pos());
  QRect client = viewport()->geometry();
  int right = std::min(cell.left() + columnWidth(col), client.right() + 1);
  auto* box = new CITPComboBox(this, row, col, GetItemText(row, col), comboCols_);
  box->setGeometry(cell.left(), cell.top() - 3, right - cell.left(), box->sizeHint().height());
  box->show();
  box->setFocus();
}

void CListCtrlEx::OnLabelEditEnded(int row, int col, const std::wstring* text) {
  if (text) SetItemText(row, col, *text);
}

void CListCtrlEx::SortByColumn(int col) {
  if (!sortEnabled_) return;
  if (col != sortCol_) {
    sortCol_ = col;
    sortAscending_ = 1;
  } else {
    sortAscending_ = sortAscending_ ? 0 : 1;
  }
  // A never-written cell sorts as the empty text it shows; Qt's sort would
  // put its row last in either direction.
  for (int row = 0; row < rowCount(); ++row) CellItem(row, sortCol_);
  sortItems(sortCol_, sortAscending_ ? Qt::AscendingOrder : Qt::DescendingOrder);
}
