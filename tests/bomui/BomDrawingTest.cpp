// The output of the button "输出" to a table on the current drawing, read
// back from the drawing's saved file.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "BomDrawing.h"
#include "CallLog.h"
#include "CfgOption.h"
#include "DlgBomShow.h"
#include "HostControl.h"
#include "Inspection.h"
#include "ListCtrlEx.h"
#include "MessageBox.h"
#include "ModelFile.h"
#include "PluginHost.h"
#include "SavedTable.h"
#include "ProMdl.h"

namespace fs = std::filesystem;

namespace {

TEST(BomDrawingColumnWidths, ATenthOfThePixelsAndAtLeastOne) {
  EXPECT_EQ(BomDrawingColumnWidths({120, 19, 5, 0}), (std::vector<unsigned>{12, 1, 1, 1}));
}

TEST(BomDrawingTable, RowsBeyondTheFixedBoundAreCutAndTheHeaderCountsItsNames) {
  std::vector<ColInfo> cols(3);
  cols[0].name = L"序号";
  cols[0].show = 1;
  cols[2].name = L"名称";
  cols[2].show = 1;
  std::vector<std::wstring> wide(kDrwTblMaxCells + 5, L"x");
  std::vector<DrwTblCells> table = BomDrawingTable(cols, {{L"1", L"轴"}, wide});
  ASSERT_EQ(table.size(), 3u);
  EXPECT_EQ(table[0].count, 2);
  EXPECT_EQ(table[0].cells[1], L"名称");
  EXPECT_EQ(table[1].count, 2);
  EXPECT_EQ(table[2].count, kDrwTblMaxCells);
}

// The sample reducer copied into the test's directory with its assembly
// drawing current and the list dialog open on it, every cell of the list
// with a known text.
class BomDrawingTest : public testing::Test {
 protected:
  void SetUp() override {
    fs::copy(fs::path(BOM_SAMPLES_DIR) / "reducer", dir.path() / "session", fs::copy_options::recursive);
    ASSERT_EQ(sim::LoadSession(dir.path() / "session"), PRO_TK_NO_ERROR);
    for (const sim::SessionModel& model : sim::SessionModels()) {
      if (model.fileName.starts_with(L"reducer.drw")) drawing = model.handle;
    }
    ASSERT_NE(drawing, nullptr);
    ASSERT_TRUE(sim::SetCurrentModel(drawing));
    previousBox_ = platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
      prompts.push_back(request.caption + L":" + request.text);
      return request.flags == platform::kMbYesNo ? platform::kIdNo : platform::kIdOk;
    });
    dialog = std::make_unique<CDlgBomShow>();
    dialog->OnInitDialog();
    list = dialog->findChild<CListCtrlEx*>("BomList");
    ASSERT_GT(list->GetItemCount(), 3);
    for (int row = 0; row < list->GetItemCount(); ++row) {
      for (int col = 0; col < list->columnCount(); ++col) {
        list->SetItemText(row, col, L"行" + std::to_wstring(row) + L"列" + std::to_wstring(col));
      }
    }
  }
  void TearDown() override {
    dialog.reset();
    platform::SetMessageBoxHandler(previousBox_);
  }

  void Press(std::optional<std::wstring> pick) {
    sim::PushAnswer("ProMousePickGet", std::move(pick));
    dialog->findChild<QCheckBox*>("ExcelCheck")->setChecked(false);
    dialog->findChild<QCheckBox*>("TextCheck")->setChecked(false);
    dialog->findChild<QCheckBox*>("DrawingCheck")->setChecked(true);
    dialog->findChild<QPushButton*>("ExportButton")->click();
  }
  // The drawing's tables as its saved file holds them.
  std::vector<sim::TableDef> SavedTables() {
    EXPECT_EQ(ProMdlSave(drawing), PRO_TK_NO_ERROR);
    std::optional<sim::ModelDef> def = sim::ReadModelFile(dir.path() / "session" / "reducer.drw.2");
    EXPECT_TRUE(def.has_value());
    return def ? def->tables : std::vector<sim::TableDef>{};
  }
  std::vector<std::wstring> ShownColumnNames() const {
    std::vector<ColInfo> cols;
    CCfgOption().GetColInfos(cols);
    std::vector<std::wstring> names;
    for (const ColInfo& col : cols) {
      if (col.show) names.push_back(col.name);
    }
    return names;
  }

  TestDir dir;
  PluginHost host{dir};
  ProMdl drawing = nullptr;
  std::vector<std::wstring> prompts;
  std::unique_ptr<CDlgBomShow> dialog;
  CListCtrlEx* list = nullptr;

 private:
  platform::MessageBoxHandler previousBox_;
};

TEST_F(BomDrawingTest, TableStandsOnThePickedPointWithTheHeaderOnTopAndTheCheckedRowsBelow) {
  list->SetCheck(1, false);
  list->setColumnWidth(0, 64);
  Press(L"120,80");
  EXPECT_EQ(sim::Messages().currentLine, L"请选择表格放置位置");
  std::vector<sim::TableDef> tables = SavedTables();
  ASSERT_EQ(tables.size(), 1u);
  const sim::TableDef& table = tables[0];
  int columns = list->columnCount();
  ASSERT_EQ(static_cast<int>(table.columns.size()), columns);
  EXPECT_DOUBLE_EQ(table.columns[0].width, 6 * table.charWidth);
  ASSERT_EQ(static_cast<int>(table.rows.size()), list->GetItemCount());
  std::vector<std::wstring> names = ShownColumnNames();
  for (int col = 0; col < columns; ++col) {
    EXPECT_EQ(CellLines(table, 1, col + 1), std::vector<std::wstring>{names[col]});
    EXPECT_EQ(CellLines(table, 2, col + 1), std::vector<std::wstring>{L"行0列" + std::to_wstring(col)});
    EXPECT_EQ(CellLines(table, 3, col + 1), std::vector<std::wstring>{L"行2列" + std::to_wstring(col)});
  }
  EXPECT_DOUBLE_EQ(table.origin[0], 120);
  EXPECT_DOUBLE_EQ(table.origin[1] - TableHeight(table), 80);
  EXPECT_TRUE(prompts.empty());
}

TEST_F(BomDrawingTest, NarrowColumnsGetWidthOneEmptyCellsNoTextAndLineFeedsSeveralLines) {
  list->setColumnWidth(1, 19);
  list->setColumnWidth(2, 5);
  list->SetItemText(0, 1, L"");
  list->SetItemText(0, 2, L"上\n下");
  Press(L"0,0");
  std::vector<sim::TableDef> tables = SavedTables();
  ASSERT_EQ(tables.size(), 1u);
  EXPECT_DOUBLE_EQ(tables[0].columns[1].width, tables[0].charWidth);
  EXPECT_DOUBLE_EQ(tables[0].columns[2].width, tables[0].charWidth);
  EXPECT_EQ(CellLines(tables[0], 2, 2), std::nullopt);
  EXPECT_EQ(CellLines(tables[0], 2, 3), (std::vector<std::wstring>{L"上", L"下"}));
}

TEST_F(BomDrawingTest, NothingCheckedDrawsTheHeaderAloneLiftedByItsOneRow) {
  for (int row = 0; row < list->GetItemCount(); ++row) list->SetCheck(row, false);
  Press(L"10,20");
  std::vector<sim::TableDef> tables = SavedTables();
  ASSERT_EQ(tables.size(), 1u);
  ASSERT_EQ(tables[0].rows.size(), 1u);
  EXPECT_DOUBLE_EQ(tables[0].origin[1], 20 + tables[0].rows[0]);
}

TEST_F(BomDrawingTest, AbortedPickDrawsNothingAndSaysNothing) {
  Press(std::nullopt);
  EXPECT_TRUE(SavedTables().empty());
  EXPECT_TRUE(prompts.empty());
}

TEST_F(BomDrawingTest, ColumnTableChangedWhileTheListIsOpenIsToldAndNothingDrawn) {
  std::vector<ColInfo> cols;
  CCfgOption option;
  option.GetColInfos(cols);
  auto shown = std::find_if(cols.begin() + 1, cols.end(), [](const ColInfo& col) { return col.show; });
  ASSERT_NE(shown, cols.end());
  shown->show = 0;
  option.SetColInfo(*shown);
  Press(L"0,0");
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:列数异常, 请检查配置项"});
  EXPECT_TRUE(SavedTables().empty());
}

TEST_F(BomDrawingTest, WithoutADrawingCurrentNothingIsAskedOrDrawn) {
  ASSERT_TRUE(sim::SetCurrentModel(sim::OpenModel(L"reducer.asm")));
  sim::SetCallLogging(true);
  EXPECT_EQ(dialog->ExportToDrawing(list->GetItemCount()), 1);
  auto log = sim::CallLog();
  EXPECT_TRUE(
      std::none_of(log.begin(), log.end(), [](const auto& c) { return c.name == "ProMousePickGet"; }));
}

}  // namespace
