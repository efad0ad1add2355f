// Every input with which fuzzing once broke a reader: each is now read or
// refused with the engine's own error, and what is read saves and reads again.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "Workbook.h"

namespace fs = std::filesystem;

namespace {

TEST(FuzzFindings, EachIsReadOrRefusedCleanly) {
  fs::path findings = fs::path(BOM_TEST_DATA_DIR) / "fuzz" / "findings";
  int count = 0;
  for (const auto& entry : fs::directory_iterator(findings)) {
    std::ifstream in(entry.path(), std::ios::binary);
    workbook::Bytes image((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ++count;
    try {
      auto book = workbook::LoadWorkbook(image);
      for (const std::wstring& sheet : book->SheetNames()) book->GetCellText(sheet, 1, 1);
      EXPECT_NO_THROW(workbook::LoadWorkbook(book->Save())) << entry.path();
    } catch (const workbook::Error& error) {
      EXPECT_STRNE(error.what(), "") << entry.path();
    }
  }
  EXPECT_GT(count, 0);
}

}  // namespace
