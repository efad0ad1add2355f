#include "ExcelApp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "BiffStructure.h"
#include "CodePage.h"
#include "FileFaults.h"
#include "ReadBack.h"
#include "Shell.h"
#include "TestDir.h"

namespace fs = std::filesystem;

namespace {

const fs::path kTemplates = fs::path(BOM_STAGE_DIR) / "template";

class ExcelAppTest : public testing::Test {
 protected:
  void TearDown() override { platform::ClearFileFaults(); }
  std::wstring Wide(const fs::path& path) { return platform::ToWide(path.string()); }
  TestDir dir_;
};

TEST_F(ExcelAppTest, NewFromTemplateNeedsTheApplicationAndAnExistingTemplate) {
  ExcelApp excel;
  EXPECT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 0);
  EXPECT_EQ(excel.StartExcel(1), 1);
  EXPECT_EQ(excel.NewFromTemplate(Wide(kTemplates / "missing.xls")), 0);
  dir_.Write("broken.xls", "not a workbook");
  EXPECT_EQ(excel.NewFromTemplate(dir_.Wide("broken.xls")), 0);
  EXPECT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 1);
}

TEST_F(ExcelAppTest, TemplateNamedInAnotherCaseIsFound) {
  ExcelApp excel;
  excel.StartExcel(1);
  EXPECT_EQ(excel.NewFromTemplate(Wide(kTemplates) + L"\\bom.xls"), 1);
  std::wstring header;
  excel.GetCellText(L"bom", 3, 3, header);
  EXPECT_EQ(header, L"图号");
}

TEST_F(ExcelAppTest, CellOperationsWithoutWorkbookOrWithMissingSheetAndFailedSavesThrow) {
  ExcelApp excel;
  excel.StartExcel(1);
  std::wstring text = L"old";
  EXPECT_THROW(excel.SetCellText(L"bom", 1, 1, L"x"), workbook::Error);
  EXPECT_THROW(excel.GetCellText(L"bom", 1, 1, text), workbook::Error);
  EXPECT_EQ(text, L"");  // emptied before the read
  EXPECT_THROW(excel.SaveWorkbookAs(dir_.Wide(), L"out"), workbook::Error);

  ASSERT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 1);
  EXPECT_THROW(excel.SetCellText(L"Sheet1", 1, 1, L"x"), workbook::Error);
  EXPECT_THROW(excel.SetCellText(L"bom", 0, 1, L"x"), workbook::Error);
  EXPECT_THROW(excel.SetCellText(L"bom", 1, 257, L"x"), workbook::Error);
  EXPECT_THROW(excel.SaveWorkbookAs(dir_.Wide("no such directory"), L"out"), workbook::Error);
  EXPECT_TRUE(fs::is_empty(dir_.path())) << "a failed save leaves no file";
}

TEST_F(ExcelAppTest, SaveAddsSeparatorOnlyWhenMissingAndKeepsTheTemplatesFormat) {
  ExcelApp excel;
  excel.StartExcel(1);
  ASSERT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 1);
  excel.SaveWorkbookAs(dir_.Wide(), L"plain");
  excel.SaveWorkbookAs(dir_.Wide() + L"\\", L"ending");
  EXPECT_TRUE(fs::exists(dir_.path() / "plain.xls"));
  EXPECT_TRUE(fs::exists(dir_.path() / "ending.xls"));

  ASSERT_EQ(excel.NewFromTemplate(Wide(fs::path(BOM_TEST_DATA_DIR) / "workbook" / "template.xlsx")), 1);
  excel.SaveWorkbookAs(dir_.Wide(), L"open");
  EXPECT_TRUE(fs::exists(dir_.path() / "open.xlsx"));
  ExpectIndependentReadersAgree(
      {{dir_.path() / "plain.xls", kTemplates / "BOM.xls", {}},
       {dir_.path() / "ending.xls", kTemplates / "BOM.xls", {}},
       {dir_.path() / "open.xlsx", fs::path(BOM_TEST_DATA_DIR) / "workbook" / "template.xlsx", {}}},
      dir_.path());
}

TEST_F(ExcelAppTest, CloseAllDropsTheWorkbookAndCanBeCalledAgain) {
  ExcelApp excel;
  excel.StartExcel(1);
  ASSERT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 1);
  excel.SetCellText(L"bom", 4, 1, L"1");
  excel.CloseAll();
  excel.CloseAll();
  std::wstring text;
  EXPECT_THROW(excel.GetCellText(L"bom", 4, 1, text), workbook::Error);
  EXPECT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 0);  // the application quit
  EXPECT_TRUE(fs::is_empty(dir_.path()));
}

TEST_F(ExcelAppTest, OpenedWorkbookReadsItsCells) {
  ExcelApp excel;
  excel.StartExcel(0);
  EXPECT_EQ(excel.OpenWorkbook(dir_.Wide("missing.xls")), 0);
  ASSERT_EQ(excel.OpenWorkbook(Wide(kTemplates / "Params.xls")), 1);
  std::wstring text;
  excel.GetCellText(L"sheet1", 1, 1, text);
  EXPECT_EQ(text, L"属性名称");
  excel.GetCellText(L"sheet1", 4, 4, text);
  EXPECT_EQ(text, L"Q235");
}

TEST_F(ExcelAppTest, BomTemplateTakesTheOutputOfFiveHundredRows) {
  // The layout of data/config/Excel.cfg: date J2, 图号 C2, 名称 F2, table from
  // A4, ten columns, all rows on the one sheet. Rows past the template's
  // ruled ones look like its first table row.
  ExcelApp excel;
  ASSERT_EQ(excel.StartExcel(1), 1);
  ASSERT_EQ(excel.NewFromTemplate(Wide(kTemplates / "BOM.xls")), 1);
  ASSERT_EQ(excel.SetModelRow(L"bom", 4), 1);
  std::vector<ExpectedCell> cells;
  excel.SetCellText(L"bom", 2, 10, L"2024.05.06");
  excel.SetCellText(L"bom", 2, 3, L"0012");
  excel.SetCellText(L"bom", 2, 6, L"减速器");
  cells.push_back(TextCell("bom", 2, 10, "2024.05.06"));
  cells.push_back(TextCell("bom", 2, 3, "0012"));  // 图号 is formatted as text
  cells.push_back(TextCell("bom", 2, 6, "减速器"));
  for (int i = 1; i <= 500; ++i) {
    int row = 3 + i;
    std::string n = std::to_string(i);
    std::wstring wide(n.begin(), n.end());
    const std::vector<std::wstring> texts = {wide,  L"1." + wide, L"GB-" + wide, L"齿轮轴", L"2",
                                             L"45", L"1.25",      L"2.5",        L"自制",   L"SHAFT_" + wide};
    for (size_t c = 0; c < texts.size(); ++c)
      excel.SetCellText(L"bom", row, static_cast<int>(c) + 1, texts[c]);
    cells.push_back(NumberCell("bom", row, 1, i, n));
    cells.push_back(TextCell("bom", row, 2, "1." + n));  // 层级 stays text: 1.10 is not 1.1
    cells.push_back(TextCell("bom", row, 3, "GB-" + n));
    cells.push_back(TextCell("bom", row, 4, "齿轮轴"));
    cells.push_back(NumberCell("bom", row, 5, 2, "2"));
    cells.push_back(TextCell("bom", row, 6, "45"));  // 材料 is text
    cells.push_back(NumberCell("bom", row, 7, 1.25, "1.25"));
    cells.push_back(NumberCell("bom", row, 8, 2.5, "2.5"));
    cells.push_back(TextCell("bom", row, 9, "自制"));
    cells.push_back(TextCell("bom", row, 10, "SHAFT_" + n));
    for (auto cell = cells.end() - 10; cell != cells.end(); ++cell) cell->formatOfTemplateRow = 4;
  }
  excel.SaveWorkbookAs(dir_.Wide(), L"减速器_零件明细");
  excel.CloseAll();

  fs::path file = dir_.path() / "减速器_零件明细.xls";
  ASSERT_TRUE(fs::exists(file));
  ExpectIndependentReadersAgree({{file, kTemplates / "BOM.xls", cells}}, dir_.path());
}

TEST(DeliveredBomTemplate, PrintsLandscapeOnePageWideWithTheHeadRowsOnEveryPage) {
  BiffPrintSetup setup = FirstSheetPrintSetup(kTemplates / "BOM.xls");
  EXPECT_TRUE(setup.landscape);
  EXPECT_TRUE(setup.fitToPage);
  EXPECT_EQ(setup.fitWidth, 1);
  EXPECT_EQ(setup.fitHeight, 0);
  // The title, the head cells and the column titles above the table at A4.
  EXPECT_EQ(setup.titleFirstRow, 1);
  EXPECT_EQ(setup.titleLastRow, 3);
}

TEST_F(ExcelAppTest, FileAccessibleTellsWhetherTheFileExists) {
  ExcelApp excel;
  dir_.Write("here.txt", "");
  EXPECT_EQ(excel.FileAccessible(dir_.Wide("here.txt")), 1);
  EXPECT_EQ(excel.FileAccessible(dir_.Wide("gone.txt")), 0);
}

TEST_F(ExcelAppTest, OpenFileInShellHandsExistingFilesToTheShell) {
  std::vector<platform::ShellOpenRequest> requests;
  auto previous = platform::SetShellOpenHandler([&](const platform::ShellOpenRequest& request) {
    requests.push_back(request);
    return true;
  });
  ExcelApp excel;
  dir_.Write("out.xls", "x");
  EXPECT_EQ(excel.OpenFileInShell(dir_.Wide("gone.xls")), 0);
  EXPECT_EQ(excel.OpenFileInShell(dir_.Wide("out.xls")), 1);
  platform::SetShellOpenHandler(previous);
  ASSERT_EQ(requests.size(), 1u);
  EXPECT_EQ(requests[0].path, dir_.Wide("out.xls"));
  EXPECT_EQ(requests[0].showCommand, platform::kSwShowNormal);
}

TEST_F(ExcelAppTest, AppendLineCreatesTruncatesOrAppends) {
  ExcelApp excel;
  std::wstring file = dir_.Wide("bom.txt");
  EXPECT_EQ(excel.AppendLine(file, L"序号\t名称\t\r\n", 0), 1);  // missing: made
  EXPECT_EQ(excel.AppendLine(file, L"1\t轴\t\r\n", 0), 1);
  EXPECT_EQ(dir_.Read("bom.txt"), "序号\t名称\t\r\n1\t轴\t\r\n");
  EXPECT_EQ(excel.AppendLine(file, L"new\r\n", 1), 1);
  EXPECT_EQ(dir_.Read("bom.txt"), "new\r\n");
  EXPECT_EQ(excel.AppendLine(dir_.Wide("no dir\\x.txt"), L"lost", 0), 0);
}

TEST_F(ExcelAppTest, AppendLineThatFillsTheDiskLeavesTheFileAsItWas) {
  ExcelApp excel;
  dir_.Write("bom.txt", "序号\t名称\t\r\n");
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir_.path(), 12});
  EXPECT_EQ(excel.AppendLine(dir_.Wide("bom.txt"), L"1\t轴\t\r\n", 0), 0);
  EXPECT_EQ(excel.AppendLine(dir_.Wide("bom.txt"), L"a new header line\r\n", 1), 0);
  EXPECT_EQ(dir_.Read("bom.txt"), "序号\t名称\t\r\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(dir_.path()), fs::directory_iterator()), 1);
}

}  // namespace
