#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTextEdit>

#include <memory>

#include "ITPComboBox.h"
#include "ListCtrlEx.h"
#include "ListSort.h"

namespace {

// A list of three columns: 0 the number, 1 typed in, 2 chosen from a box.
class ListCtrlExTest : public testing::Test {
 protected:
  void SetUp() override {
    list = std::make_unique<CListCtrlEx>();
    list->resize(500, 300);
    list->InsertColumn(0, L"序号", 60);
    list->InsertColumn(1, L"名称", 150);
    list->InsertColumn(2, L"材料", 150);
    for (int row = 0; row < 4; ++row) {
      list->InsertItem(row, std::to_wstring(row + 1), 14);
      list->SetItemText(row, 1, L"name" + std::to_wstring(row));
      list->SetItemText(row, 2, L"Q235");
    }
    list->SetEditMode(CListCtrlEx::kModeEditColumns, {}, {1});
    list->SetComboColumns({{2, {L"Q235", L"45"}}});
    list->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(list.get()));
  }

  QPoint CellCenter(int row, int col) const {
    return list->visualRect(list->model()->index(row, col)).center();
  }
  void DoubleClick(int row, int col) {
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, CellCenter(row, col));
  }
  void Click(int row, int col) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, CellCenter(row, col));
  }
  void ClickHeader(int col) {
    int x = list->horizontalHeader()->sectionViewportPosition(col) + 10;
    QTest::mouseClick(list->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
  }
  QTextEdit* EditField() const { return list->findChild<QTextEdit*>("ListEditField"); }
  CITPComboBox* ComboBox() const { return list->findChild<CITPComboBox*>(); }
  std::vector<std::wstring> Column(int col) const {
    std::vector<std::wstring> texts;
    for (int row = 0; row < list->GetItemCount(); ++row) texts.push_back(list->GetItemText(row, col));
    return texts;
  }

  std::unique_ptr<CListCtrlEx> list;
};

TEST_F(ListCtrlExTest, DoubleClickOnEditColumnOpensFieldWithCellTextSelected) {
  DoubleClick(2, 1);
  QTextEdit* field = EditField();
  ASSERT_NE(field, nullptr);
  EXPECT_TRUE(field->isVisible());
  EXPECT_EQ(field->toPlainText(), "name2");
  EXPECT_EQ(field->textCursor().selectedText(), "name2");
  EXPECT_EQ(list->EditRow(), 2);
  EXPECT_EQ(list->EditCol(), 1);
}

TEST_F(ListCtrlExTest, DoubleClickOpensNoFieldOutsideEditColumnsOrInAnotherMode) {
  DoubleClick(1, 0);
  EXPECT_TRUE(EditField() == nullptr || !EditField()->isVisible());
  EXPECT_EQ(list->EditRow(), -1);
  list->SetEditMode(3, {0}, {1});
  DoubleClick(1, 1);
  EXPECT_TRUE(EditField() == nullptr || !EditField()->isVisible());
  EXPECT_EQ(list->EditRow(), -1);
}

TEST_F(ListCtrlExTest, TextEditCommitsAtNextPressInListEvenOnItsCellAndNotifiesOnce) {
  QSignalSpy notified(list.get(), &CListCtrlEx::CellEditEnded);
  DoubleClick(2, 1);
  QTest::keyClicks(EditField(), "bolt");
  Click(0, 0);
  EXPECT_EQ(list->GetItemText(2, 1), L"bolt");
  EXPECT_FALSE(EditField()->isVisible());
  EXPECT_EQ(list->EditRow(), -1);
  // The notification is posted, not sent.
  EXPECT_EQ(notified.count(), 0);
  QCoreApplication::processEvents();
  ASSERT_EQ(notified.count(), 1);
  EXPECT_EQ(notified[0][0].toInt(), 2);
  EXPECT_EQ(notified[0][1].toInt(), 1);
  DoubleClick(1, 1);
  QTest::keyClicks(EditField(), "x");
  Click(1, 1);
  EXPECT_EQ(list->GetItemText(1, 1), L"x");
}

TEST_F(ListCtrlExTest, ReturnKeyDoesNotEndTheEdit) {
  DoubleClick(1, 1);
  QTest::keyClicks(EditField(), "a");
  QTest::keyClick(EditField(), Qt::Key_Return);
  EXPECT_TRUE(EditField()->isVisible());
  EXPECT_EQ(list->GetItemText(1, 1), L"name1");
}

TEST_F(ListCtrlExTest, ClosingWithAnOpenEditLosesTheText) {
  QSignalSpy notified(list.get(), &CListCtrlEx::CellEditEnded);
  DoubleClick(1, 1);
  QTest::keyClicks(EditField(), "lost");
  list->close();
  QCoreApplication::processEvents();
  EXPECT_EQ(list->GetItemText(1, 1), L"name1");
  EXPECT_EQ(notified.count(), 0);
}

TEST_F(ListCtrlExTest, FieldStaysPutWhenTheListScrolls) {
  for (int row = 4; row < 60; ++row) list->InsertItem(row, std::to_wstring(row + 1), 14);
  DoubleClick(1, 1);
  QPoint before = EditField()->pos();
  list->verticalScrollBar()->setValue(10);
  EXPECT_EQ(EditField()->pos(), before);
}

TEST_F(ListCtrlExTest, ComboBoxOpensWithCellChoiceAndCommitsSilentlyOnFocusLossButNotToItsDropDown) {
  QSignalSpy notified(list.get(), &CListCtrlEx::CellEditEnded);
  DoubleClick(3, 2);
  CITPComboBox* box = ComboBox();
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->count(), 2);
  EXPECT_EQ(box->currentText(), "Q235");
  box->setCurrentIndex(1);
  QFocusEvent toPopup(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(box, &toPopup);
  EXPECT_EQ(list->GetItemText(3, 2), L"Q235");
  QFocusEvent focusOut(QEvent::FocusOut, Qt::MouseFocusReason);
  QApplication::sendEvent(box, &focusOut);
  EXPECT_EQ(list->GetItemText(3, 2), L"45");
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ComboBox(), nullptr);
  EXPECT_EQ(notified.count(), 0);
}

TEST_F(ListCtrlExTest, ComboBoxNotOpenedOnNarrowColumn) {
  list->setColumnWidth(2, 4);
  DoubleClick(3, 1);
  list->setColumnWidth(2, 4);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                     list->visualRect(list->model()->index(3, 2)).topLeft() + QPoint(1, 2));
  EXPECT_EQ(ComboBox(), nullptr);
}

TEST_F(ListCtrlExTest, EditAndComboOnOneColumnOpenBoth) {
  list->SetComboColumns({{1, {L"a"}}});
  DoubleClick(0, 1);
  EXPECT_TRUE(EditField()->isVisible());
  EXPECT_NE(ComboBox(), nullptr);
}

TEST_F(ListCtrlExTest, OddRowsAreShadedGrey) {
  list->clearSelection();
  list->setCurrentItem(nullptr);
  QImage image = list->viewport()->grab().toImage();
  QPoint even = CellCenter(0, 2) + QPoint(60, 0);
  QPoint odd = CellCenter(1, 2) + QPoint(60, 0);
  EXPECT_EQ(image.pixelColor(odd).rgb() & 0xFFFFFF, 0xE6E6E6u);
  EXPECT_NE(image.pixelColor(even).rgb() & 0xFFFFFF, 0xE6E6E6u);
}

TEST_F(ListCtrlExTest, HeaderClickSortsAsTextThenReversesOnSecondClick) {
  list->SetItemText(0, 1, L"9");
  list->SetItemText(1, 1, L"10");
  list->SetItemText(2, 1, L"2");
  list->SetItemText(3, 1, L"螺栓");
  list->EnableSort(1);
  ClickHeader(1);
  EXPECT_EQ(Column(1), (std::vector<std::wstring>{L"10", L"2", L"9", L"螺栓"}));
  EXPECT_EQ(Column(0), (std::vector<std::wstring>{L"2", L"3", L"1", L"4"}));
  ClickHeader(1);
  EXPECT_EQ(Column(1), (std::vector<std::wstring>{L"螺栓", L"9", L"2", L"10"}));
}

// Column 3 is written in two rows only; the others have no cell there.
TEST_F(ListCtrlExTest, NeverWrittenCellSortsAsAnEmptyText) {
  list->InsertColumn(3, L"备注", 80);
  list->SetItemText(1, 3, L"b");
  list->SetItemText(3, 3, L"a");
  list->EnableSort(1);
  ClickHeader(3);
  EXPECT_EQ(Column(3), (std::vector<std::wstring>{L"", L"", L"a", L"b"}));
  EXPECT_EQ(Column(0), (std::vector<std::wstring>{L"1", L"3", L"4", L"2"}));
  ClickHeader(3);
  EXPECT_EQ(Column(3), (std::vector<std::wstring>{L"b", L"a", L"", L""}));
}

TEST_F(ListCtrlExTest, ClickOnAnotherHeaderSortsAscending) {
  list->EnableSort(1);
  ClickHeader(0);
  ClickHeader(0);
  EXPECT_EQ(Column(0), (std::vector<std::wstring>{L"4", L"3", L"2", L"1"}));
  ClickHeader(1);
  EXPECT_EQ(Column(1), (std::vector<std::wstring>{L"name0", L"name1", L"name2", L"name3"}));
}

TEST_F(ListCtrlExTest, HeaderClickWithoutSortChangesNothing) {
  list->SetItemText(0, 1, L"z");
  ClickHeader(1);
  EXPECT_EQ(Column(1), (std::vector<std::wstring>{L"z", L"name1", L"name2", L"name3"}));
}

TEST_F(ListCtrlExTest, ChecksAndImagesTravelWithTheirRows) {
  list->SetCheck(0, true);
  list->SetItemText(0, 1, L"b");
  list->SetItemText(1, 1, L"a");
  list->EnableSort(1);
  ClickHeader(1);
  EXPECT_EQ(list->GetItemText(0, 1), L"a");
  EXPECT_FALSE(list->GetCheck(0));
  EXPECT_TRUE(list->GetCheck(1));
  EXPECT_FALSE(list->item(1, 0)->icon().isNull());
}

// Where the list's style puts a cell's text, with the cell's check box and
// image as the list draws them.
class CellLayoutProbe : public CListCtrlEx {
 public:
  QRect TextRect(int row, int col) const {
    QModelIndex index = model()->index(row, col);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    option.widget = this;
    ItemOption().Fill(&option, index);
    return style()->subElementRect(QStyle::SE_ItemViewItemText, &option, this);
  }

 private:
  struct ItemOption : QStyledItemDelegate {
    void Fill(QStyleOptionViewItem* option, const QModelIndex& index) const {
      initStyleOption(option, index);
    }
  };
};

// The width of the BOM list's first column in the delivered Tbl.cfg.
TEST(ListCtrlExLayout, ThreeDigitRowNumberReadsWholeBesideCheckBoxAndImage) {
  CellLayoutProbe list;
  list.resize(300, 200);
  list.InsertColumn(0, L"序号", 50);
  list.InsertColumn(1, L"名称", 100);
  list.InsertItem(0, L"128", 14);
  list.SetItemText(0, 1, L"齿轮轴");
  list.InsertItem(1, L"129", 15);
  list.SetCheck(0, true);
  list.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));

  // The style draws the text inside its rectangle less a margin each side.
  QRect text = list.TextRect(0, 0);
  int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
  QRect cell = list.visualRect(list.model()->index(0, 0));
  EXPECT_GE(text.width() - 2 * margin, list.fontMetrics().horizontalAdvance("128"));
  EXPECT_LE(text.right(), cell.right());
}

TEST(ListSort, ComparesNarrowTextCutTo259Bytes) {
  EXPECT_LT(CompareListText(L"10", L"9"), 0);
  EXPECT_GT(CompareListText(L"b", L"B"), 0);
  EXPECT_EQ(CompareListText(std::wstring(259, L'a') + L"x", std::wstring(259, L'a') + L"y"), 0);
  EXPECT_LT(CompareListText(std::wstring(258, L'a') + L"x", std::wstring(258, L'a') + L"y"), 0);
}

}  // namespace
