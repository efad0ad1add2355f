// The outputs of the button "输出": the list as it stands on the screen goes to
// a workbook from the delivered template and to a tab-aligned text file.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <filesystem>
#include <memory>
#include <tuple>

#include "BiffStructure.h"
#include "BomExport.h"
#include "CfgOption.h"
#include "CodePage.h"
#include "DlgBomShow.h"
#include "FileFaults.h"
#include "HostControl.h"
#include "IniEx.h"
#include "ListCtrlEx.h"
#include "PluginHost.h"
#include "ReadBack.h"
#include "RecordedPrompts.h"
#include "TkBOM.h"

namespace fs = std::filesystem;

namespace {

TEST(BomTextLine, TabsFollowTheCharacterCount) {
  EXPECT_EQ(BomTextLine({L""}), L"\t\t");
  EXPECT_EQ(BomTextLine({L"8"}), L"8\t");
  EXPECT_EQ(BomTextLine({L"ab"}), L"ab\t\t");
  EXPECT_EQ(BomTextLine({L"1234567"}), L"1234567\t\t");
  EXPECT_EQ(BomTextLine({L"12345678"}), L"12345678\t");
  // Wide characters count as one each: the alignment is by character count.
  EXPECT_EQ(BomTextLine({L"齿轮轴", L"", L"轴"}), L"齿轮轴\t\t\t\t轴\t");
}

TEST(BomTextLine, HeaderNamesOnlyTheShownColumnsEachFollowedByATab) {
  std::vector<ColInfo> cols(3);
  cols[0].name = L"序号";
  cols[0].show = 1;
  cols[1].name = L"外形尺寸";
  cols[2].name = L"名称";
  cols[2].show = 1;
  EXPECT_EQ(BomTextHeaderLine(cols), L"序号\t名称\t");
}

TEST(BomOutputPaths, ExcelIsAppendedWithoutSeparatorAndTheTextPathAddsOne) {
  EXPECT_EQ(BomExcelDir(L"D:\\work\\"), L"D:\\work\\Excel");
  EXPECT_EQ(BomExcelDir(L"D:\\work"), L"D:\\workExcel");
  EXPECT_EQ(BomTextPath({L"D:\\work\\", L"a"}), L"D:\\work\\\\a.txt");
  EXPECT_EQ(BomTextPath({L"D:\\work", L"a"}), L"D:\\work\\a.txt");
}

// The sample reducer in session with the delivered settings, its list dialog
// open. Questions are answered as `yes` says, the shell's opens are
// recorded, and every cell of the list gets a known text.
class BomExportTest : public testing::Test, protected RecordedPrompts {
 protected:
  void SetUp() override {
    ASSERT_EQ(sim::LoadSession(fs::path(BOM_SAMPLES_DIR) / "reducer"), PRO_TK_NO_ERROR);
  }
  void TearDown() override {
    platform::ClearFileFaults();
    dialog.reset();
  }

  void OpenWithTheSampleTexts() {
    dialog = std::make_unique<CDlgBomShow>();
    dialog->OnInitDialog();
    list = dialog->findChild<CListCtrlEx*>("BomList");
  }
  void Open() {
    OpenWithTheSampleTexts();
    ASSERT_GT(list->GetItemCount(), 4);
    for (int row = 0; row < list->GetItemCount(); ++row) {
      for (int col = 0; col < list->columnCount(); ++col) list->SetItemText(row, col, CellText(row, col));
    }
    outDir()->setText(QString::fromStdWString(dir.Wide("out") + L"\\"));
    fs::create_directory(dir.path() / "out");
    dialog->findChild<QLineEdit*>("FileNameEdit")->setText("清单");
  }
  static std::wstring CellText(int row, int col) {
    return L"行" + std::to_wstring(row) + L"列" + std::to_wstring(col);
  }
  QLineEdit* outDir() const { return dialog->findChild<QLineEdit*>("OutDirEdit"); }
  void Press(bool excel, bool text) {
    dialog->findChild<QCheckBox*>("ExcelCheck")->setChecked(excel);
    dialog->findChild<QCheckBox*>("TextCheck")->setChecked(text);
    dialog->findChild<QPushButton*>("ExportButton")->click();
  }
  void SetExcelCfg(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    CIniEx().SetValue(CCfgOption().GetExcelCfgPath(), section, key, value, L"");
  }
  fs::path Workbook() const { return dir.path() / "out" / "Excel" / "清单.xls"; }
  std::wstring WorkbookPath() const { return dir.Wide("out") + L"\\Excel\\清单.xls"; }
  std::wstring TextPath() const { return dir.Wide("out") + L"\\\\清单.txt"; }
  // The head cells of the delivered Excel.cfg: date J2, 图号 C2, 名称 F2.
  static std::vector<ExpectedCell> HeadCells() {
    return {TextCell("bom", 2, 10, platform::ToNarrow(TkBOM().GetTodayText())),
            TextCell("bom", 2, 3, "JSQ-00-000"), TextCell("bom", 2, 6, "二级圆柱齿轮减速器")};
  }
  // Expected sheet cells of list rows written one under the other from
  // `firstRow`, `firstCol`.
  std::vector<ExpectedCell> TableCells(const std::vector<int>& listRows, int firstRow, int firstCol) const {
    std::vector<ExpectedCell> cells;
    for (size_t i = 0; i < listRows.size(); ++i) {
      for (int col = 0; col < list->columnCount(); ++col) {
        cells.push_back(TextCell("bom", firstRow + static_cast<int>(i), firstCol + col,
                                 platform::ToNarrow(CellText(listRows[i], col))));
      }
    }
    return cells;
  }

  TestDir dir;
  PluginHost host{dir};
  std::unique_ptr<CDlgBomShow> dialog;
  CListCtrlEx* list = nullptr;

 private:
};

TEST_F(BomExportTest, ExcelHoldsOnlyTheCheckedRowsWithoutGapsBelowDateAndParameters) {
  Open();
  list->SetCheck(1, false);
  list->SetCheck(3, false);
  std::vector<int> checked;
  for (int row = 0; row < list->GetItemCount(); ++row) {
    if (list->GetCheck(row)) checked.push_back(row);
  }
  Press(true, false);

  ASSERT_TRUE(fs::exists(Workbook()));
  std::vector<ExpectedCell> cells = HeadCells();
  for (const ExpectedCell& cell : TableCells(checked, 4, 1)) cells.push_back(cell);
  int afterLast = 4 + static_cast<int>(checked.size());
  for (int col = 1; col <= list->columnCount(); ++col) cells.push_back(EmptyCell("bom", afterLast, col));
  ExpectIndependentReadersAgree({{Workbook(), fs::path(BOM_STAGE_DIR) / "template" / "BOM.xls", cells}},
                                dir.path());
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:是否打开：" + WorkbookPath() + L" ？"});
  EXPECT_TRUE(opened.empty());
}

TEST_F(BomExportTest, ExcelTableStartsAtTheConfiguredCellAndIgnoresThePageLength) {
  SetExcelCfg(L"ExcelTbl", L"BegainRow", L"6");
  SetExcelCfg(L"ExcelTbl", L"BegainCol", L"C");
  SetExcelCfg(L"ExcelTbl", L"RowNumOfPage", L"2");
  Open();
  std::vector<int> all;
  for (int row = 0; row < list->GetItemCount(); ++row) all.push_back(row);
  yes = true;
  Press(true, false);

  ASSERT_TRUE(fs::exists(Workbook()));
  std::vector<ExpectedCell> cells = TableCells(all, 6, 3);
  cells.push_back(EmptyCell("bom", 6, 2));
  ExpectIndependentReadersAgree({{Workbook(), {}, cells}}, dir.path());
  EXPECT_EQ(opened, std::vector<std::wstring>{WorkbookPath()});
}

// The template rules rows 4 to 38; a table from row 34 runs past them.
TEST_F(BomExportTest, RowsBelowTheTemplateTakeTheFormatsOfTheFirstTableRow) {
  constexpr int kFirstRow = 34;
  constexpr int kLastRuledRow = 38;
  SetExcelCfg(L"ExcelTbl", L"BegainRow", std::to_wstring(kFirstRow));
  Open();
  std::vector<int> all;
  for (int row = 0; row < list->GetItemCount(); ++row) all.push_back(row);
  ASSERT_GT(kFirstRow + static_cast<int>(all.size()) - 1, kLastRuledRow);
  Press(true, false);

  std::vector<ExpectedCell> cells = HeadCells();
  for (ExpectedCell cell : TableCells(all, kFirstRow, 1)) {
    cell.formatOfTemplateRow = kFirstRow;
    cells.push_back(cell);
  }
  ExpectIndependentReadersAgree({{Workbook(), fs::path(BOM_STAGE_DIR) / "template" / "BOM.xls", cells}},
                                dir.path());
}

// In the template's font, a character outside ASCII takes the room of two
// "0"; the column's width, in 1/256 of a "0", holds the text and one more.
TEST_F(BomExportTest, TemplateColumnsAreWideEnoughForTheSamplesTexts) {
  CCfgOption().SetLevelType(1);
  OpenWithTheSampleTexts();
  ASSERT_GT(list->GetItemCount(), 20);
  fs::path bomTemplate = fs::path(BOM_STAGE_DIR) / "template" / "BOM.xls";
  for (int col = 0; col < list->columnCount(); ++col) {
    int widest = 0;
    std::wstring widestText;
    for (int row = 0; row < list->GetItemCount(); ++row) {
      std::wstring text = list->GetItemText(row, col);
      int units = 0;
      for (wchar_t c : text) units += c < 0x80 ? 1 : 2;
      if (units > widest) std::tie(widest, widestText) = std::tie(units, text);
    }
    EXPECT_GE(FirstSheetColumnWidth(bomTemplate, col + 1), (widest + 1) * 256)
        << "column " << col + 1 << ": " << platform::ToNarrow(widestText);
  }
}

TEST_F(BomExportTest, NothingCheckedGivesTheTemplateWithDateAndParametersOnly) {
  Open();
  for (int row = 0; row < list->GetItemCount(); ++row) list->SetCheck(row, false);
  Press(true, false);
  std::vector<ExpectedCell> cells = HeadCells();
  for (int col = 1; col <= list->columnCount(); ++col) cells.push_back(EmptyCell("bom", 4, col));
  ExpectIndependentReadersAgree({{Workbook(), fs::path(BOM_STAGE_DIR) / "template" / "BOM.xls", cells}},
                                dir.path());
}

TEST_F(BomExportTest, ExistingWorkbookIsKeptWhenOverwritingIsDeclined) {
  Open();
  fs::create_directories(Workbook().parent_path());
  dir.Write("out/Excel/清单.xls", "mine");
  Press(true, false);
  EXPECT_EQ(dir.Read("out/Excel/清单.xls"), "mine");
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:文件：" + WorkbookPath() + L" 已经存在，是否覆盖？"});

  yes = true;
  Press(true, false);
  EXPECT_NE(dir.Read("out/Excel/清单.xls"), "mine");
  EXPECT_TRUE(PythonReaderProblems({Workbook(), {}, HeadCells()}, dir.path()).empty());
}

TEST_F(BomExportTest, DirectoryFieldWithoutBackslashGetsASiblingEndingInExcel) {
  Open();
  outDir()->setText(QString::fromStdWString(dir.Wide("out")));
  Press(true, false);
  EXPECT_TRUE(fs::exists(dir.path() / "outExcel" / "清单.xls"));
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "Excel"));
}

// A user's template saved in the newer format keeps the template's name.
TEST_F(BomExportTest, TemplateOfTheNewerFormatGivesAWorkbookOfThatFormat) {
  fs::path xlsxTemplate = fs::path(BOM_TEST_DATA_DIR) / "workbook" / "BOM.xlsx";
  fs::copy_file(xlsxTemplate, fs::path(platform::ToNarrow(host.TextRoot())) / "template" / "BOM.xls",
                fs::copy_options::overwrite_existing);
  Open();
  list->SetCheck(0, false);
  std::vector<int> checked;
  for (int row = 1; row < list->GetItemCount(); ++row) checked.push_back(row);
  Press(true, false);

  fs::path written = dir.path() / "out" / "Excel" / "清单.xlsx";
  ASSERT_TRUE(fs::exists(written));
  EXPECT_FALSE(fs::exists(Workbook()));
  std::vector<ExpectedCell> cells = HeadCells();
  for (const ExpectedCell& cell : TableCells(checked, 4, 1)) cells.push_back(cell);
  ExpectIndependentReadersAgree({{written, xlsxTemplate, cells}}, dir.path());
  std::wstring shown = dir.Wide("out") + L"\\Excel\\清单.xlsx";
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:是否打开：" + shown + L" ？"});
}

TEST_F(BomExportTest, MissingTemplateIsToldAndNothingIsSaved) {
  Open();
  fs::remove(fs::path(platform::ToNarrow(host.TextRoot())) / "template" / "BOM.xls");
  Press(true, false);
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:新建Excel失败"});
  EXPECT_TRUE(fs::is_empty(dir.path() / "out" / "Excel"));
}

// The date cell of an empty "Data" key lies outside the sheet: the cell's
// failure is told with the workbook it broke off, and nothing is saved.
TEST_F(BomExportTest, ACellTheSpreadsheetRefusesIsToldWithTheWorkbook) {
  SetExcelCfg(L"ExcelBase", L"Data", L"");
  Open();
  Press(true, true);
  ASSERT_EQ(prompts.size(), 1u);
  EXPECT_TRUE(prompts[0].starts_with(L"提示:" + dir.Wide("out/Excel/清单.xls") + L": ")) << prompts[0];
  EXPECT_TRUE(fs::is_empty(dir.path() / "out" / "Excel"));
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "清单.txt"));
}

TEST_F(BomExportTest, WithoutCurrentModelOnlyTheTextIsWritten) {
  Open();
  sim::SetCurrentModel(nullptr);
  Press(true, true);
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "Excel"));
  EXPECT_TRUE(fs::exists(dir.path() / "out" / "清单.txt"));
}

TEST_F(BomExportTest, TextHoldsTheHeaderAndTheCheckedRowsByteForByteAndOnlyTheHeaderWithNoneChecked) {
  Open();
  list->SetItemText(0, 0, L"");
  list->SetItemText(0, 1, L"1");
  list->SetItemText(0, 2, L"JSQ-00-000");
  for (int row = 2; row < list->GetItemCount(); ++row) list->SetCheck(row, false);
  dir.Write("out/清单.txt", "old contents to be replaced\n");
  yes = true;
  Press(false, true);

  std::wstring expected =
      L"序号\t层级\t图号\t名称\t数量\t材料\t重量\t总重\t备注\t模型名称\t\r\n\t\t1\tJSQ-00-000\t";
  for (int col = 3; col < list->columnCount(); ++col) expected += CellText(0, col) + L"\t\t";
  expected += L"\r\n";
  for (int col = 0; col < list->columnCount(); ++col) expected += CellText(1, col) + L"\t\t";
  expected += L"\r\n";
  EXPECT_EQ(dir.Read("out/清单.txt"), platform::ToNarrow(expected));
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:是否打开：" + TextPath() + L" ？"});
  EXPECT_EQ(opened, std::vector<std::wstring>{TextPath()});

  list->SetCheck(0, false);
  list->SetCheck(1, false);
  Press(false, true);
  EXPECT_EQ(dir.Read("out/清单.txt"), "序号\t层级\t图号\t名称\t数量\t材料\t重量\t总重\t备注\t模型名称\t\r\n");
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "Excel"));
}

// A workbook of an earlier output, left read-only (by a viewer or on
// purpose): the save is refused with the workbook's name, the old workbook
// stays as it was, the later text output is not made, and the dialog goes on
// to write the next output once the file may be written.
TEST_F(BomExportTest, ReadOnlyWorkbookIsToldAndKeptAndTheNextOutputSucceeds) {
  Open();
  dir.Write("out/Excel/清单.xls", "the workbook of yesterday");
  const fs::perms readOnly = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
  fs::permissions(Workbook(), readOnly);
  yes = true;
  Press(true, true);

  ASSERT_EQ(prompts.size(), 2u);
  EXPECT_EQ(prompts[0], L"提示:文件：" + WorkbookPath() + L" 已经存在，是否覆盖？");
  EXPECT_TRUE(prompts[1].starts_with(L"提示:")) << prompts[1];
  EXPECT_NE(prompts[1].find(platform::ToWide(Workbook().string())), std::wstring::npos) << prompts[1];
  EXPECT_EQ(dir.Read("out/Excel/清单.xls"), "the workbook of yesterday");
  EXPECT_EQ(fs::status(Workbook()).permissions(), readOnly);
  EXPECT_EQ(std::distance(fs::directory_iterator(Workbook().parent_path()), fs::directory_iterator()), 1);
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "清单.txt"));

  fs::permissions(Workbook(), fs::perms::owner_write, fs::perm_options::add);
  prompts.clear();
  Press(true, false);
  EXPECT_EQ(prompts.back(), L"提示:是否打开：" + WorkbookPath() + L" ？");
  EXPECT_TRUE(PythonReaderProblems({Workbook(), {}, HeadCells()}, dir.path()).empty());
}

// Where chmod does not stop the writer (tests may run as root), the
// directory is made read-only through the platform's fault seam.
TEST_F(BomExportTest, ReadOnlyExcelDirectoryOrAFullDiskKeepsTheOldWorkbook) {
  Open();
  dir.Write("out/Excel/清单.xls", "the workbook of yesterday");
  yes = true;
  for (platform::FileFault fault :
       {platform::FileFault{platform::FileFaultKind::kReadOnlyDirectory, Workbook().parent_path()},
        platform::FileFault{platform::FileFaultKind::kDiskFull, Workbook(), 4096}}) {
    SCOPED_TRACE(static_cast<int>(fault.kind));
    platform::InjectFileFault(fault);
    prompts.clear();
    Press(true, false);
    ASSERT_EQ(prompts.size(), 2u);
    EXPECT_NE(prompts[1].find(platform::ToWide(Workbook().string())), std::wstring::npos) << prompts[1];
    EXPECT_EQ(dir.Read("out/Excel/清单.xls"), "the workbook of yesterday");
    EXPECT_EQ(std::distance(fs::directory_iterator(Workbook().parent_path()), fs::directory_iterator()), 1);
    platform::ClearFileFaults();
  }
}

// The text file cannot be written: no report, the old file whole, and the
// question whether to open it still asked.
TEST_F(BomExportTest, TextThatFillsTheDiskHalfWayLeavesTheOldText) {
  Open();
  dir.Write("out/清单.txt", "the list of yesterday\r\n");
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir.path() / "out", 40});
  Press(false, true);
  EXPECT_EQ(dir.Read("out/清单.txt"), "the list of yesterday\r\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(dir.path() / "out"), fs::directory_iterator()), 1);
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:是否打开：" + TextPath() + L" ？"});
}

}  // namespace
