// CTkDrwTable against the simulated host's drawing tables: what it draws is
// read back from the drawing's saved file.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "CallLog.h"
#include "HostControl.h"
#include "ModelFile.h"
#include "PluginHost.h"
#include "SavedTable.h"
#include "ProMdl.h"
#include "TkDrwTable.h"

namespace {

class TkDrwTableTest : public testing::Test {
 protected:
  void SetUp() override { sim::SetCallLogging(true); }
  // A drawing of the given sheets loaded from a file of the test.
  ProMdl LoadDrawing(const std::string& sheets = "[]") {
    dir_.Write("work/plan.drw.1", R"({"type": "drawing", "sheets": )" + sheets + "}");
    ProMdl drawing = sim::OpenModel(L"plan.drw");
    EXPECT_NE(drawing, nullptr);
    return drawing;
  }
  ProDwgtable Create(ProMdl drawing, std::vector<unsigned> widths, std::vector<std::wstring> headers,
                     double x = 100, double y = 50) {
    ProDwgtable table{};
    ProPoint3d origin = {x, y, 0};
    EXPECT_EQ(drw_.CreateDrwTable(drawing, origin, widths, headers, table, 1, 0, 0), 0);
    return table;
  }
  sim::TableDef Saved(ProMdl drawing) {
    EXPECT_EQ(ProMdlSave(drawing), PRO_TK_NO_ERROR);
    std::optional<sim::ModelDef> def = sim::ReadModelFile(dir_.path() / "work" / "plan.drw.2");
    EXPECT_TRUE(def && def->tables.size() == 1);
    return def && !def->tables.empty() ? def->tables.front() : sim::TableDef{};
  }
  static int Calls(const std::string& name) {
    auto log = sim::CallLog();
    return static_cast<int>(
        std::count_if(log.begin(), log.end(), [&](const auto& c) { return c.name == name; }));
  }

  TestDir dir_;
  PluginHost host_{dir_};
  CTkDrwTable drw_;
};

TEST(TkDrwTableSplit, LinesAreTrimmedAndEmptyOnesKeptButNoneOpensAfterATrailingSeparator) {
  std::vector<std::wstring> lines;
  CTkDrwTable().SplitLines(L" 齿轮 \n\n  M8 \n", lines, L'\n');
  EXPECT_EQ(lines, (std::vector<std::wstring>{L"齿轮", L"", L"M8"}));
  CTkDrwTable().SplitLines(L"", lines, L'\n');
  EXPECT_TRUE(lines.empty());
}

TEST_F(TkDrwTableTest, CreatedTableHoldsTheHeaderRowWithItsColumnWidthsAtTheOrigin) {
  ProMdl drawing = LoadDrawing();
  Create(drawing, {4, 10}, {L"序号", L"名称\n规格"});
  sim::TableDef table = Saved(drawing);
  ASSERT_EQ(table.columns.size(), 2u);
  EXPECT_DOUBLE_EQ(table.columns[0].width, 4 * table.charWidth);
  EXPECT_DOUBLE_EQ(table.columns[1].width, 10 * table.charWidth);
  ASSERT_EQ(table.rows.size(), 1u);
  EXPECT_DOUBLE_EQ(table.rows[0], table.charHeight);
  EXPECT_DOUBLE_EQ(table.origin[0], 100);
  EXPECT_DOUBLE_EQ(table.origin[1], 50);
  EXPECT_EQ(CellLines(table, 1, 1), (std::vector<std::wstring>{L"序号"}));
  EXPECT_EQ(CellLines(table, 1, 2), (std::vector<std::wstring>{L"名称", L"规格"}));
}

TEST_F(TkDrwTableTest, RowsKeepBlankCellsEmptyAndEmptyMiddleLinesAsABlank) {
  ProMdl drawing = LoadDrawing();
  ProDwgtable table = Create(drawing, {4, 10, 6}, {L"a", L"b", L"c"});
  EXPECT_EQ(drw_.AddTableRow(table, 1.0, {L"1", L"   ", L"上\n\n下"}, 0, 0.0, -1), 0);
  sim::TableDef saved = Saved(drawing);
  ASSERT_EQ(saved.rows.size(), 2u);
  EXPECT_EQ(CellLines(saved, 2, 1), (std::vector<std::wstring>{L"1"}));
  EXPECT_EQ(CellLines(saved, 2, 2), std::nullopt);
  EXPECT_EQ(CellLines(saved, 2, 3), (std::vector<std::wstring>{L"上", L" ", L"下"}));
}

TEST_F(TkDrwTableTest, PositionOneAddsTheFirstRowAndBelowOneAppends) {
  ProMdl drawing = LoadDrawing();
  ProDwgtable table = Create(drawing, {5}, {L"头"});
  drw_.AddTableRow(table, 1.0, {L"末"}, 0, 0.0, -1);
  drw_.AddTableRow(table, 1.0, {L"首"}, 0, 0.0, 1);
  drw_.AddTableRow(table, 1.0, {L"尾"}, 0, 0.0, 0);
  sim::TableDef saved = Saved(drawing);
  ASSERT_EQ(saved.rows.size(), 4u);
  EXPECT_EQ(CellLines(saved, 1, 1), (std::vector<std::wstring>{L"首"}));
  EXPECT_EQ(CellLines(saved, 2, 1), (std::vector<std::wstring>{L"头"}));
  EXPECT_EQ(CellLines(saved, 3, 1), (std::vector<std::wstring>{L"末"}));
  EXPECT_EQ(CellLines(saved, 4, 1), (std::vector<std::wstring>{L"尾"}));
}

TEST_F(TkDrwTableTest, HeightInTheOtherUnitIsDividedByTheFixedFactor) {
  ProMdl drawing = LoadDrawing();
  ProDwgtable table = Create(drawing, {5}, {L"头"});
  drw_.AddTableRow(table, 6.14 * 3, {L"x"}, 1, 0.0, -1);
  sim::TableDef saved = Saved(drawing);
  ASSERT_EQ(saved.rows.size(), 2u);
  EXPECT_NEAR(saved.rows[1], 3 * saved.charHeight, 1e-9);
}

TEST_F(TkDrwTableTest, TextFittingMeasuresOnlyWithAFactorAndNarrowsOnlyTooWideText) {
  ProMdl drawing = LoadDrawing();
  ProDwgtable table = Create(drawing, {4, 4}, {L"a", L"b"});
  drw_.AddTableRow(table, 1.0, {L"很长很长很长很长", L"短"}, 0, 0.0, -1);
  EXPECT_EQ(Calls("ProDwgtableCellNoteGet"), 0);
  drw_.AddTableRow(table, 1.0, {L"很长很长很长很长", L"短"}, 0, 1.0, -1);
  sim::TableDef saved = Saved(drawing);
  double height = saved.charHeight;
  double narrowed = 0;
  ASSERT_EQ(drw_.GetTableCellTextWidth(table, 3, 1, narrowed), 0);
  // Four characters of room for eight: each gets a column's eighth.
  EXPECT_NEAR(narrowed, (4 * saved.charWidth / 8) / height, 1e-9);
  double unchanged = 0, unfitted = 0;
  ASSERT_EQ(drw_.GetTableCellTextWidth(table, 3, 2, unchanged), 0);
  ASSERT_EQ(drw_.GetTableCellTextWidth(table, 2, 1, unfitted), 0);
  EXPECT_EQ(unchanged, unfitted);
  EXPECT_GT(unchanged, narrowed);
}

TEST_F(TkDrwTableTest, CellTextQueriesAnswerTheHostsStatusForAnEmptyCell) {
  ProMdl drawing = LoadDrawing();
  ProDwgtable table = Create(drawing, {4, 4}, {L"a", L""});
  double value = 0;
  EXPECT_EQ(drw_.GetTableCellTextHeight(table, 1, 2, value), PRO_TK_EMPTY);
  EXPECT_EQ(drw_.GetTableCellTextHeight(table, 1, 1, value), 0);
  EXPECT_GT(value, 0);
}

TEST_F(TkDrwTableTest, FinishingLiftsTheTableByTheSumOfItsRowHeights) {
  ProMdl drawing = LoadDrawing();
  ProDwgtable table = Create(drawing, {5}, {L"头"}, 30, 40);
  drw_.AddTableRow(table, 1.0, {L"一"}, 0, 0.0, -1);
  drw_.AddTableRow(table, 2.0, {L"二"}, 0, 0.0, -1);
  EXPECT_EQ(drw_.FinishDrwTable(table), 0);
  sim::TableDef saved = Saved(drawing);
  EXPECT_DOUBLE_EQ(saved.origin[0], 30);
  EXPECT_DOUBLE_EQ(saved.origin[1], 40 + 4 * saved.charHeight);
  EXPECT_GT(Calls("ProWindowRepaint"), 0);
}

TEST_F(TkDrwTableTest, ColumnWidthOnTheSheetFollowsTheSheetsScale) {
  ProMdl drawing =
      LoadDrawing(R"([{"size": "A1", "transform": [[2,0,0,0],[0,2,0,0],[0,0,2,0],[10,20,0,1]]}])");
  ProDwgtable table = Create(drawing, {5, 8}, {L"a", L"b"});
  double size = 0, onSheet = 0;
  ASSERT_EQ(drw_.GetColumnSize(table, 1, size), 0);
  ASSERT_EQ(drw_.GetColumnWidthOnSheet(table, 1, onSheet), 0);
  EXPECT_DOUBLE_EQ(onSheet, 2 * size);
  ProPoint3d first{}, second{};
  ASSERT_EQ(drw_.GetTableOutline(drawing, 1, table, first, second), 0);
  EXPECT_DOUBLE_EQ(first[0], 2 * 100 + 10);
  EXPECT_DOUBLE_EQ(second[1], 2 * 50 + 20);
}

TEST_F(TkDrwTableTest, DrawingSolidsComeInTheDrawingsOrderWithoutTheMissingOnes) {
  dir_.Write("work/gear.prt.1", R"({"type": "part"})");
  dir_.Write("work/shaft.prt.1", R"({"type": "part"})");
  dir_.Write("work/set.drw.1", R"({"type": "drawing", "solids": ["shaft.prt", "lost.prt", "gear.prt"]})");
  ProMdl drawing = sim::OpenModel(L"set.drw");
  std::vector<ProMdl> solids;
  EXPECT_EQ(drw_.GetDrawingSolids(drawing, solids), 0);
  EXPECT_EQ(solids, (std::vector<ProMdl>{sim::OpenModel(L"shaft.prt"), sim::OpenModel(L"gear.prt")}));
}

}  // namespace
