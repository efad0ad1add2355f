// The batch material tool's workbook: the list written from mattbl.xls into
// a chosen directory, read back by independent readers, and the material
// column taken from a chosen workbook by position.
#include "MatTable.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "CodePage.h"
#include "ExcelApp.h"
#include "HostControl.h"
#include "MessageBox.h"
#include "PluginHost.h"
#include "ReadBack.h"
#include "Shell.h"

namespace fs = std::filesystem;

namespace {

const std::vector<MatTableRow> kRows{
    {L"01", L"REDUCER", L""}, {L"02", L"INPUT_SHAFT", L"40CR"}, {L"03", L"HOUSING", L"HT200"}};

class MatTableTest : public testing::Test {
 protected:
  void SetUp() override {
    previousBox = platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
      prompts.push_back(request.caption + L":" + request.text);
      return request.flags == platform::kMbYesNo ? answer : platform::kIdOk;
    });
    previousShell = platform::SetShellOpenHandler([this](const platform::ShellOpenRequest& request) {
      opened.push_back(request.path);
      return true;
    });
    fs::create_directories(dir.path() / "out");
  }
  void TearDown() override {
    platform::SetMessageBoxHandler(previousBox);
    platform::SetShellOpenHandler(previousShell);
  }
  std::wstring Target() const { return dir.Wide("out") + L"\\MatTable.xls"; }
  std::map<int, std::wstring> Import(int rowCount) const {
    std::map<int, std::wstring> materials;
    ReadMatTable(rowCount, [&](int row, const std::wstring& material) { materials[row] = material; });
    return materials;
  }

  TestDir dir;
  PluginHost host{dir};
  platform::MessageBoxHandler previousBox;
  platform::ShellOpenHandler previousShell;
  std::vector<std::wstring> prompts;
  std::vector<std::wstring> opened;
  int answer = platform::kIdNo;
};

TEST_F(MatTableTest, EveryRowGoesBelowTheTemplatesHeadingAndTheFileIsOfferedToOpen) {
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  answer = platform::kIdYes;
  WriteMatTable(kRows);
  const fs::path written = dir.path() / "out" / "MatTable.xls";
  ASSERT_TRUE(fs::exists(written));
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:是否打开：" + Target() + L" ？"});
  EXPECT_EQ(opened, std::vector<std::wstring>{Target()});

  std::vector<ExpectedCell> cells{TextCell("sheet1", 1, 1, "序号"), TextCell("sheet1", 1, 3, "材料名称")};
  for (int row = 0; row < static_cast<int>(kRows.size()); ++row) {
    cells.push_back(TextCell("sheet1", row + 2, 1, platform::ToNarrow(kRows[row].index)));
    cells.push_back(TextCell("sheet1", row + 2, 2, platform::ToNarrow(kRows[row].name)));
    cells.push_back(kRows[row].material.empty()
                        ? EmptyCell("sheet1", row + 2, 3)
                        : TextCell("sheet1", row + 2, 3, platform::ToNarrow(kRows[row].material)));
  }
  cells.push_back(EmptyCell("sheet1", 5, 1));
  ExpectIndependentReadersAgree({{written, fs::path(BOM_STAGE_DIR) / "template" / "mattbl.xls", cells}},
                                dir.path());
}

TEST_F(MatTableTest, AnExistingTableStaysUnlessTheOverwriteIsConfirmed) {
  dir.Write("out/MatTable.xls", "earlier");
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  WriteMatTable(kRows);
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:文件：" + Target() + L" 已经存在，是否覆盖？"});
  EXPECT_EQ(dir.Read("out/MatTable.xls"), "earlier");

  prompts.clear();
  answer = platform::kIdYes;
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  WriteMatTable(kRows);
  EXPECT_EQ(prompts.size(), 2u) << "the overwrite, then the offer to open";
  ExcelApp excel;
  excel.StartExcel(0);
  ASSERT_EQ(excel.OpenWorkbook(Target()), 1);
  std::wstring material;
  excel.GetCellText(L"sheet1", 4, 3, material);
  EXPECT_EQ(material, L"HT200");
}

TEST_F(MatTableTest, NoRowsOrNoDirectoryWritesNothing) {
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  WriteMatTable({});
  EXPECT_TRUE(sim::TakeAnswer("ProDirectoryChoose").has_value()) << "no directory was asked for";
  sim::PushAnswer("ProDirectoryChoose", std::nullopt);
  WriteMatTable(kRows);
  EXPECT_TRUE(fs::is_empty(dir.path() / "out"));
  EXPECT_TRUE(prompts.empty());
}

TEST_F(MatTableTest, AMissingTemplateIsToldAndTheOldTableIsGoneAlready) {
  fs::remove(fs::path(platform::ToNarrow(host.TextRoot())) / "template" / "mattbl.xls");
  dir.Write("out/MatTable.xls", "earlier");
  answer = platform::kIdYes;
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  WriteMatTable(kRows);
  EXPECT_EQ(prompts.back(), L"提示:新建Excel失败");
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "MatTable.xls"));
}

TEST_F(MatTableTest, TheImportTakesTheMaterialColumnByPositionAndEmptyBelowTheSheetsRows) {
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  WriteMatTable({{L"07", L"OTHER", L"Q235"}, {L"08", L"ANOTHER", L"45"}});
  sim::PushAnswer("ProFileMdlfiletypeOpen", Target());
  std::map<int, std::wstring> materials = Import(4);
  EXPECT_EQ(materials, (std::map<int, std::wstring>{{0, L"Q235"}, {1, L"45"}, {2, L""}, {3, L""}}));
}

TEST_F(MatTableTest, TheImportEndsWithoutAWorkbookOrRowsAndTellsOfOneItCannotRead) {
  sim::PushAnswer("ProFileMdlfiletypeOpen", std::nullopt);
  EXPECT_TRUE(Import(3).empty());
  EXPECT_TRUE(prompts.empty());

  dir.Write("out/MatTable.xls", "not a workbook");
  sim::PushAnswer("ProFileMdlfiletypeOpen", Target());
  EXPECT_TRUE(Import(0).empty());
  EXPECT_TRUE(sim::TakeAnswer("ProFileMdlfiletypeOpen").has_value()) << "no file was asked for";
  sim::PushAnswer("ProFileMdlfiletypeOpen", Target());
  EXPECT_TRUE(Import(3).empty());
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:加载失败: " + Target()});
}

}  // namespace
