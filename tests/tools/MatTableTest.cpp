// The batch material tool's workbook: the list written from mattbl.xls into
// a chosen directory and read back by independent readers. The import is
// played through the dialog (DlgMatSetTest).
#include "MatTable.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "CodePage.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "ReadBack.h"
#include "RecordedPrompts.h"

namespace fs = std::filesystem;

namespace {

const std::vector<MatTableRow> kRows{
    {L"01", L"REDUCER", L""}, {L"02", L"INPUT_SHAFT", L"40CR"}, {L"03", L"HOUSING", L"HT200"}};

class MatTableTest : public testing::Test, protected RecordedPrompts {
 protected:
  void SetUp() override { fs::create_directories(dir.path() / "out"); }
  std::wstring Target() const { return dir.Wide("out") + L"\\MatTable.xls"; }

  TestDir dir;
  PluginHost host{dir};
};

TEST_F(MatTableTest, EveryRowGoesBelowTheTemplatesHeadingAndTheFileIsOfferedToOpen) {
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  yes = true;
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
}

TEST_F(MatTableTest, AMissingTemplateIsToldAndTheOldTableIsGoneAlready) {
  fs::remove(fs::path(platform::ToNarrow(host.TextRoot())) / "template" / "mattbl.xls");
  dir.Write("out/MatTable.xls", "earlier");
  yes = true;
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  WriteMatTable(kRows);
  EXPECT_EQ(prompts.back(), L"提示:新建Excel失败");
  EXPECT_FALSE(fs::exists(dir.path() / "out" / "MatTable.xls"));
}

}  // namespace
