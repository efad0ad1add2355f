// The settings of the bill of materials: Opt.cfg, Tbl.cfg and Excel.cfg.
#include <gtest/gtest.h>

#include <tuple>

#include "CfgOption.h"
#include "ConfigTestSupport.h"

namespace {

class BomOptionsTest : public TextRootTest {
 protected:
  void GivenExcel(const std::string& section, const std::string& lines) {
    dir.Write("config/Excel.cfg", "[" + section + "]\n" + lines + "\n");
  }
  // Begin row, begin column and rows of a page.
  std::tuple<int, int, int> Layout(const std::string& lines) {
    GivenExcel("ExcelTbl", lines);
    int row = 0, col = 0, rows = 0;
    CCfgOption().GetTblLayout(row, col, rows);
    return {row, col, rows};
  }
  ColInfo Parsed(const std::wstring& key, const std::wstring& value, int expectedResult = 1) {
    ColInfo colInfo;
    colInfo.name = L"stale";
    EXPECT_EQ(CCfgOption().ParseColInfo(key, value, colInfo), expectedResult);
    return colInfo;
  }
};

}  // namespace

TEST_F(BomOptionsTest, LevelTypeOutsideZeroToTwoReadsAsZero) {
  for (auto [stored, read] : {std::pair{"2", 2}, {"3", 0}, {"-1", 0}, {"x", 0}}) {
    dir.Write("config/Opt.cfg", std::string("[BOM]\nLevelType=") + stored + "\n");
    EXPECT_EQ(CCfgOption().GetLevelType(), read) << stored;
  }
}

TEST_F(BomOptionsTest, BomChoicesAreWrittenWithTheirComments) {
  dir.Write("config/Opt.cfg", "[Menu]\nMenubarId=\n[BOM]\nLevelType=0\n");
  CCfgOption option;
  option.SetLevelType(2);
  option.SetExportExcel(1);
  option.SetExportText(1);
  option.SetExportCurMdl(0);
  EXPECT_EQ(
      dir.Read("config/Opt.cfg"),
      "[Menu]\nMenubarId=\n[BOM]\nLevelType=2#层级, 0表示单层清单, 1表示多层清单,2表示汇总清单\n"
      "ExportExcel=1#输出清单到Excel\nExportText=1#输出清单到Text\nExportCurMdl=0#输出清单到当前模型\n");
  EXPECT_EQ(option.GetLevelType(), 2);
  EXPECT_EQ(option.GetExportExcel(), 1);
  EXPECT_EQ(option.GetExportText(), 1);
  EXPECT_EQ(option.GetExportCurMdl(), 0);
}

TEST_F(BomOptionsTest, ColumnLineParsesByPositionAndMissingTailFieldsStayCleared) {
  ColInfo full = Parsed(L"3", L"图号;130;1;;无;图号;0;0;1");
  EXPECT_EQ(full.id, 3);
  EXPECT_EQ(full.name, L"图号");
  EXPECT_EQ(full.width, 130);
  EXPECT_EQ(full.editType, 1);
  EXPECT_EQ(full.defaultValue, L"无");
  EXPECT_EQ(full.paramName, L"图号");
  EXPECT_EQ(full.show, 1);

  ColInfo hidden = Parsed(L"2", L"名称;60;0;;;;4;0");
  EXPECT_EQ(hidden.paramType, PARAMTYPE_PARTNAME);
  EXPECT_EQ(hidden.show, 0) << "without its last field the column is hidden";

  ColInfo empty = Parsed(L"7", L"", 0);
  EXPECT_EQ(empty.id, 7);
  EXPECT_EQ(empty.name, L"");

  ColInfo trimmed = Parsed(L"1", L" 序号 ; 50 ;0;;;;2;0;1;extra;fields");
  EXPECT_EQ(trimmed.name, L"序号");
  EXPECT_EQ(trimmed.width, 50);
  EXPECT_EQ(trimmed.show, 1);
}

TEST_F(BomOptionsTest, ColumnsReadInFileOrderWithUnparsableLinesKept) {
  dir.Write("config/Tbl.cfg",
            "[Col]\n1=序号;50;0;;;;2;0;1\n2=\n3=外形□尺寸;100;0;;;;6;0;1\n[Other]\n9=x;1;0;;;;0;0;1\n");
  std::vector<ColInfo> cols{ColInfo{}};
  EXPECT_EQ(CCfgOption().GetColInfos(cols), 1);
  ASSERT_EQ(cols.size(), 3u);
  EXPECT_EQ(cols[1].id, 2);
  EXPECT_EQ(cols[1].show, 0);
  EXPECT_EQ(cols[2].name, L"外形 尺寸");
  std::remove((dir.path() / "config/Tbl.cfg").c_str());
  EXPECT_EQ(CCfgOption().GetColInfos(cols), 1);
  EXPECT_TRUE(cols.empty());
}

TEST_F(BomOptionsTest, ColumnWrittenAndReadAgainKeepsItsFieldsButASemicolonShiftsThem) {
  dir.Write("config/Tbl.cfg", "; the BOM columns\n[Col]\n1=序号;50;0;;;;2;0;1\n2=old\n");
  CCfgOption option;
  ColInfo written{2, L"材 料", 90, 2, L"45,Q235", L"-", L"材料", PARAMTYPE_MDLPARAM, 0, 1};
  EXPECT_EQ(option.SetColInfo(written), 1);
  std::vector<ColInfo> cols;
  option.GetColInfos(cols);
  ASSERT_EQ(cols.size(), 2u);
  EXPECT_EQ(cols[1].name, L"材 料");
  EXPECT_EQ(cols[1].comboItems, L"45,Q235");
  EXPECT_EQ(cols[1].defaultValue, L"-");
  EXPECT_EQ(cols[1].paramName, L"材料");
  EXPECT_EQ(cols[1].editType, 2);
  EXPECT_EQ(cols[1].show, 1);
  EXPECT_EQ(dir.Read("config/Tbl.cfg"),
            "; the BOM columns\n[Col]\n1=序号;50;0;;;;2;0;1\n2=材□料;90;2;45,Q235;-;材料;0;0;1\n");

  written.comboItems = L"a;b";
  option.SetColInfo(written);
  option.GetColInfos(cols);
  EXPECT_EQ(cols[1].comboItems, L"a");
  EXPECT_EQ(cols[1].defaultValue, L"b") << "nothing escapes the separator";
}

TEST_F(BomOptionsTest, ColumnLettersAreOneLetterInEitherCaseAndBegainColFallsBackToOne) {
  CCfgOption option;
  EXPECT_EQ(option.ColLetterToIndex(L"A"), 1);
  EXPECT_EQ(option.ColLetterToIndex(L"z"), 26);
  EXPECT_EQ(option.ColLetterToIndex(L"AA"), -1);
  EXPECT_EQ(option.ColLetterToIndex(L"5"), -1);
  EXPECT_EQ(option.ColLetterToIndex(L""), -1);
  EXPECT_EQ(std::get<1>(Layout("BegainCol=c")), 3);
  EXPECT_EQ(std::get<1>(Layout("BegainCol=AA")), 1);
  EXPECT_EQ(std::get<1>(Layout("BegainCol=5")), 1);
}

TEST_F(BomOptionsTest, RowsOfAPageAreClampedAndMissingReadsAsOne) {
  EXPECT_EQ(Layout("RowNumOfPage=0"), std::tuple(1, 1, 1));
  EXPECT_EQ(Layout("BegainRow=4"), std::tuple(4, 1, 1));
  EXPECT_EQ(Layout("RowNumOfPage=500"), std::tuple(1, 1, 100));
  EXPECT_EQ(Layout("RowNumOfPage=35"), std::tuple(1, 1, 35));
  EXPECT_EQ(Layout("BegainRow=-3"), std::tuple(1, 1, 1));
}

TEST_F(BomOptionsTest, DataCellIsALetterAndARow) {
  // A second letter is no row; no Data key reads the same.
  for (auto [lines, cell] :
       {std::pair{"Data=J2", std::pair(2, 10)}, {"Data=AB12", {0, -1}}, {"PageName=x", {0, -1}}}) {
    GivenExcel("ExcelBase", lines);
    int row = 0, col = 0;
    CCfgOption().GetDataCell(row, col);
    EXPECT_EQ(std::pair(row, col), cell) << lines;
  }
}

TEST_F(BomOptionsTest, OtherCellsSkipItemsWithoutAComma) {
  GivenExcel("ExcelBase", "Other=图号,C2;标题;材料,D2");
  std::vector<ExcelParam> cells;
  CCfgOption().GetOtherCells(cells);
  ASSERT_EQ(cells.size(), 2u);
  EXPECT_EQ(cells[0].paramName, L"图号");
  EXPECT_EQ(std::pair(cells[0].row, cells[0].col), std::pair(2, 3));
  EXPECT_EQ(cells[1].paramName, L"材料");
  EXPECT_EQ(std::pair(cells[1].row, cells[1].col), std::pair(2, 4));
}

TEST_F(BomOptionsTest, PageNameDefaultsToBom) {
  GivenExcel("ExcelBase", "Data=J2");
  EXPECT_EQ(CCfgOption().GetPageName(), L"bom");
  GivenExcel("ExcelBase", "PageName=清单");
  EXPECT_EQ(CCfgOption().GetPageName(), L"清单");
}

TEST_F(BomOptionsTest, ShowOptionsAndNumberLists) {
  GivenExcel("Show",
             "ShowSamAsmCmps=1\nLevelSign=-\nSaveParamBeforExport=1\nEnableSaveParamBtn=1\n"
             "MassDecimalPlacesNum=3\nSortCol=2,,5,\nFilterCol=");
  CCfgOption option;
  EXPECT_EQ(option.GetShowSamAsmCmps(), 1);
  EXPECT_EQ(option.GetLevelSign(), L"-");
  EXPECT_EQ(option.GetSaveParamBeforExport(), 1);
  EXPECT_EQ(option.GetEnableSaveParamBtn(), 1);
  EXPECT_EQ(option.GetMassDecimalPlacesNum(), 3);
  std::vector<unsigned> cols{9};
  option.GetSortCols(cols);
  EXPECT_EQ(cols, (std::vector<unsigned>{2, 0, 5})) << "an inner empty piece is 0, a trailing comma nothing";
  option.GetFilterCols(cols);
  EXPECT_TRUE(cols.empty());
}

TEST_F(BomOptionsTest, DefaultSortIndexMayEqualTheNumberOfSortColumns) {
  for (auto [stored, read] : {std::pair{"3", 3}, {"4", 0}, {"-1", 0}, {"1", 1}}) {
    GivenExcel("Show", std::string("SortCol=2,3,5\nDefSortComboIndex=") + stored);
    EXPECT_EQ(CCfgOption().GetDefSortComboIndex(), read) << stored;
  }
}

TEST_F(BomOptionsTest, MissingExcelFileReadsAsDefaults) {
  CCfgOption option;
  int row = 0, col = 0, rows = 0;
  option.GetTblLayout(row, col, rows);
  EXPECT_EQ(std::tuple(row, col, rows), std::tuple(1, 1, 1));
  EXPECT_EQ(option.GetPageName(), L"bom");
  EXPECT_EQ(option.GetLevelSign(), L"");
  EXPECT_EQ(option.GetDefSortComboIndex(), 0);
}
