#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FileFaults.h"
#include "TestDir.h"
#include "Workbook.h"

namespace fs = std::filesystem;

namespace {

class SaveFaultsTest : public testing::TestWithParam<std::string> {
 protected:
  void TearDown() override { platform::ClearFileFaults(); }

  std::unique_ptr<workbook::Workbook> OpenTemplate() const {
    return workbook::OpenWorkbook(fs::path(BOM_TEST_DATA_DIR) / ("workbook/template" + GetParam()));
  }
  fs::path Target() const { return dir_.path() / ("bom" + GetParam()); }

  TestDir dir_;
};

}  // namespace

// A save that breaks off half-way says which file it could not write, and
// the workbook saved before is still whole.
TEST_P(SaveFaultsTest, DiskFullHalfWayKeepsTheWorkbookSavedBefore) {
  auto book = OpenTemplate();
  book->SetCellText(L"表一", 3, 1, L"first");
  book->SaveAs(Target());
  const std::string before = dir_.Read(Target().filename().string());

  book->SetCellText(L"表一", 3, 1, L"second");
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir_.path(), before.size() / 2});
  try {
    book->SaveAs(Target());
    ADD_FAILURE() << "the save did not fail";
  } catch (const workbook::Error& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr(Target().string()));
  }
  EXPECT_EQ(dir_.Read(Target().filename().string()), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(dir_.path()), fs::directory_iterator()), 1);
  EXPECT_EQ(workbook::OpenWorkbook(Target())->GetCellText(L"表一", 3, 1), L"first");
}

INSTANTIATE_TEST_SUITE_P(Formats, SaveFaultsTest, testing::Values(".xls", ".xlsx"),
                         [](const auto& info) { return info.param.substr(1); });
