// The settings files the plug-in is installed with: every section a setter
// needs is there with a key, the BOM tables make a usable list that agrees
// with the template, and writing a setting back changes only its own line.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "CfgOption.h"
#include "IniReader.h"
#include "PluginHost.h"

namespace {

class DeliveredConfigTest : public testing::Test {
 protected:
  std::string Config(const std::string& file) const { return dir_.Read("app/config/" + file); }
  std::wstring ConfigPath(const std::string& file) const {
    return host_.TextRoot() + L"/config/" + std::wstring(file.begin(), file.end());
  }

  TestDir dir_;
  PluginHost host_{dir_};
  CCfgOption option_;
};

}  // namespace

TEST_F(DeliveredConfigTest, EverySectionASetterNeedsHasAKey) {
  const std::map<std::string, std::vector<std::wstring>> required = {
      {"Opt.cfg", {L"Menu", L"BOM"}},
      {"Tbl.cfg", {L"Col"}},
      {"Excel.cfg", {L"ExcelBase", L"ExcelTbl", L"Show"}},
      {"BomFilter.cfg", {L"Sec1"}},
      {"Params.cfg", {L"ParamsSetDlg", L"MatSetDlg", L"MdlName"}},
      {"MdlExport.cfg", {L"Export", L"DlgChkBox", L"DlgRadio", L"DlgCombo"}},
      {"SaveAuto.cfg", {L"DlgSet", L"WrkDir"}},
      {"SPL.cfg", {L"SPL"}},
  };
  for (const auto& [file, sections] : required) {
    CIniReader reader;
    reader.SetIniFile(ConfigPath(file));
    for (const std::wstring& section : sections) EXPECT_EQ(reader.SectionExists(section), 1) << file;
  }
  for (const char* columnFile : {"RenameTbl.cfg", "MatCol.cfg", "MdlExportCol.cfg"}) {
    CIniReader reader;
    reader.SetIniFile(ConfigPath(columnFile));
    EXPECT_FALSE(reader.GetSectionNames().empty()) << columnFile;
  }
}

TEST_F(DeliveredConfigTest, ColumnTableIsNumberedInOrderAndStartsWithTheRowNumber) {
  std::vector<ColInfo> cols;
  ASSERT_EQ(option_.GetColInfos(cols), 1);
  ASSERT_GE(cols.size(), 10u);
  EXPECT_EQ(cols[0].paramType, PARAMTYPE_INDEX);
  std::vector<std::wstring> shown;
  for (size_t i = 0; i < cols.size(); ++i) {
    EXPECT_EQ(cols[i].id, static_cast<int>(i + 1));
    EXPECT_FALSE(cols[i].name.empty());
    EXPECT_GE(cols[i].paramType, PARAMTYPE_MDLPARAM);
    EXPECT_LE(cols[i].paramType, PARAMTYPE_TOTALMASS);
    if (cols[i].show) shown.push_back(cols[i].name);
  }
  // The template's header row, columns A to J.
  EXPECT_EQ(shown, (std::vector<std::wstring>{L"序号", L"层级", L"图号", L"名称", L"数量", L"材料", L"重量",
                                              L"总重", L"备注", L"模型名称"}));
}

TEST_F(DeliveredConfigTest, ExcelCellsAgreeWithTheTemplate) {
  EXPECT_EQ(option_.GetPageName(), L"bom");
  int row = 0, col = 0, rows = 0;
  option_.GetDataCell(row, col);
  EXPECT_EQ(std::pair(row, col), std::pair(2, 10));
  std::vector<ExcelParam> cells;
  option_.GetOtherCells(cells);
  ASSERT_EQ(cells.size(), 2u);
  EXPECT_EQ(cells[0].paramName, L"图号");
  EXPECT_EQ(std::pair(cells[0].row, cells[0].col), std::pair(2, 3));
  EXPECT_EQ(cells[1].paramName, L"名称");
  EXPECT_EQ(std::pair(cells[1].row, cells[1].col), std::pair(2, 6));
  option_.GetTblLayout(row, col, rows);
  EXPECT_EQ(std::pair(row, col), std::pair(4, 1));
}

TEST_F(DeliveredConfigTest, SortAndFilterColumnsAndASchemeAreThere) {
  std::vector<ColInfo> cols;
  option_.GetColInfos(cols);
  size_t shown = std::count_if(cols.begin(), cols.end(), [](const ColInfo& c) { return c.show != 0; });
  std::vector<unsigned> sortCols, filterCols;
  option_.GetSortCols(sortCols);
  option_.GetFilterCols(filterCols);
  ASSERT_FALSE(sortCols.empty());
  ASSERT_FALSE(filterCols.empty());
  for (unsigned sortCol : sortCols) EXPECT_LT(sortCol, cols.size());
  for (unsigned filterCol : filterCols) EXPECT_LT(filterCol, shown);
  std::vector<BomFilter> filters;
  option_.GetBomFilters(filters);
  ASSERT_FALSE(filters.empty());
  EXPECT_EQ(filters[0].Section, L"Sec1");
  EXPECT_EQ(filters[0].FilterKey, L"") << "the first scheme shows everything";
}

TEST_F(DeliveredConfigTest, WritingBackWhatWasReadChangesNoByte) {
  const std::vector<std::string> files = {"Opt.cfg",    "Tbl.cfg",      "BomFilter.cfg",
                                          "Params.cfg", "SaveAuto.cfg", "SPL.cfg"};
  std::map<std::string, std::string> before;
  for (const std::string& file : files) before[file] = Config(file);

  option_.SetLevelType(option_.GetLevelType());
  option_.SetExportExcel(option_.GetExportExcel());
  option_.SetExportText(option_.GetExportText());
  option_.SetExportCurMdl(option_.GetExportCurMdl());
  std::vector<ColInfo> cols;
  option_.GetColInfos(cols);
  for (const ColInfo& col : cols) option_.SetColInfo(col);
  std::vector<BomFilter> filters;
  option_.GetBomFilters(filters);
  for (const BomFilter& filter : filters) option_.SetBomFilter(filter);
  option_.SetRadioParams(option_.GetRadioParams());
  option_.SetRadioMdl(option_.GetRadioMdl());
  option_.SetCheckCurPath(option_.GetCheckCurPath());
  option_.SetCheckDefValue(option_.GetCheckDefValue());
  option_.SetCheckDir(option_.GetCheckDir());
  option_.SetCheckAutoSave(option_.GetCheckAutoSave());
  option_.SetRenameDrw(option_.GetRenameDrw());
  option_.SetSaveAuto(option_.GetSaveAuto());
  option_.SetDelOldVer(option_.GetDelOldVer());
  option_.SetSaveAutoTime(option_.GetSaveAutoTime());
  option_.SetWrkDir(option_.GetWrkDir());
  option_.SetFmlInstBackup(option_.GetFmlInstBackup());

  for (const std::string& file : files) EXPECT_EQ(Config(file), before[file]) << file;
}

TEST_F(DeliveredConfigTest, AChangeTouchesOnlyItsLineAndKeepsWhatAPersonWrote) {
  std::string opt = Config("Opt.cfg");
  dir_.Write("app/config/Opt.cfg", "; 张工 2024-05 改\n" + opt + "\n; 以上勿动\n");
  option_.SetLevelType(1);
  std::string expected = "; 张工 2024-05 改\n" + opt + "\n; 以上勿动\n";
  std::string oldLine = "LevelType=0#";
  expected.replace(expected.find(oldLine), oldLine.size(), "LevelType=1#");
  EXPECT_EQ(Config("Opt.cfg"), expected);
}
