// Workbooks saved by Excel and LibreOffice, not by us: each opens as a
// template, takes cells on each of its worksheets, and saves with every cell
// it had and every part we did not touch unchanged. What cannot be read is
// refused with a clear error.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "BiffStructure.h"
#include "PackageParts.h"
#include "ReadBack.h"
#include "TestDir.h"
#include "TextCodec.h"
#include "Workbook.h"

namespace fs = std::filesystem;

namespace {

const fs::path kShared = BOM_SHARED_TESTDATA_DIR;
constexpr int kWrittenRow = 300;  // below every cell these files hold

// Writes a text and a number on each worksheet; a chart sheet refuses.
std::vector<ExpectedCell> FillEachWorksheet(workbook::Workbook& book) {
  std::vector<ExpectedCell> cells;
  for (const std::wstring& sheet : book.SheetNames()) {
    try {
      book.SetCellText(sheet, kWrittenRow, 1, L"写入 " + sheet);
    } catch (const workbook::Error& error) {
      EXPECT_THAT(error.what(), testing::HasSubstr("not a worksheet"));
      continue;
    }
    book.SetCellText(sheet, kWrittenRow, 2, L"42.5");
    std::string name = workbook::ToUtf8(sheet);
    cells.push_back(TextCell(name, kWrittenRow, 1, "写入 " + name));
    cells.push_back(NumberCell(name, kWrittenRow, 2, 42.5, "42.5"));
  }
  return cells;
}

// The parts of `written` that differ from the template's, but for `changing`.
std::vector<std::string> ChangedParts(const std::map<std::string, std::string>& before,
                                      const std::map<std::string, std::string>& after,
                                      const std::set<std::string>& changing) {
  std::vector<std::string> changed;
  for (const auto& [name, data] : before) {
    if (changing.count(name)) continue;
    auto found = after.find(name);
    if (found == after.end() || found->second != data) changed.push_back(name);
  }
  for (const auto& [name, data] : after) {
    if (!before.count(name) && !changing.count(name)) changed.push_back(name + " (added)");
  }
  return changed;
}

TEST(ForeignXlsTemplates, EachOpensTakesCellsAndKeepsEverythingElse) {
  TestDir dir;
  std::vector<WrittenFile> written;
  for (const char* name : {"Formate.xls", "profiles.xls", "ragged.xls", "picture_in_cell.xls", "xf_class.xls",
                           "namesdemo.xls"}) {
    fs::path source = kShared / "xls" / name;
    auto book = workbook::OpenWorkbook(source);
    std::vector<ExpectedCell> cells = FillEachWorksheet(*book);
    EXPECT_FALSE(cells.empty()) << name;
    fs::path target = dir.path() / name;
    book->SaveAs(target);

    EXPECT_EQ(BiffStructureProblems(target), "") << name;
    EXPECT_THAT(ChangedParts(CompoundFileParts(source), CompoundFileParts(target), {"Workbook"}),
                testing::IsEmpty())
        << name;
    written.push_back({target, source, cells});
  }
  ExpectIndependentReadersAgree(written, dir.path());
}

TEST(ForeignXlsxTemplates, EachOpensTakesCellsAndKeepsEverythingElse) {
  TestDir dir;
  std::vector<WrittenFile> written;
  for (const char* name :
       {"format02.xlsx", "format06.xlsx", "row_col_format01.xlsx", "data01.xlsx", "defined_name01.xlsx",
        "comment11.xlsx", "chart_bar18.xlsx", "image82.xlsx", "hyperlink14.xlsx", "sample.xlsx"}) {
    fs::path source = kShared / "xlsx" / name;
    auto book = workbook::OpenWorkbook(source);
    std::vector<ExpectedCell> cells = FillEachWorksheet(*book);
    fs::path target = dir.path() / name;
    book->SaveAs(target);

    // What a write may change: the sheets, the strings, and the calculation
    // chain's entries in the package's lists.
    std::set<std::string> changing = {"xl/sharedStrings.xml", "xl/_rels/workbook.xml.rels",
                                      "[Content_Types].xml"};
    for (int sheet = 1; sheet <= 3; ++sheet)
      changing.insert("xl/worksheets/sheet" + std::to_string(sheet) + ".xml");
    EXPECT_THAT(ChangedParts(ZipParts(source), ZipParts(target), changing), testing::IsEmpty()) << name;
    written.push_back({target, source, cells});
  }
  ExpectIndependentReadersAgree(written, dir.path());
}

// A BIFF4 workbook, and a compound file whose streams share sectors.
TEST(ForeignTemplates, OlderOrDamagedWorkbookIsRefusedWithItsReason) {
  for (auto [name, reason] : {std::pair{"biff4_no_format_no_window2.xls", "older than Excel 97"},
                              {"corrupted_error.xls", "damaged compound file"}}) {
    try {
      workbook::OpenWorkbook(kShared / "xls" / name);
      ADD_FAILURE() << name << " was read";
    } catch (const workbook::Error& error) {
      EXPECT_THAT(error.what(), testing::HasSubstr(reason)) << name;
    }
  }
}

TEST(ForeignTemplates, MissingOrForeignFileIsRefused) {
  TestDir dir;
  dir.Write("notes.xls", "just some text, not a workbook");
  EXPECT_THROW(workbook::OpenWorkbook(dir.path() / "missing.xls"), workbook::Error);
  EXPECT_THROW(workbook::OpenWorkbook(dir.path() / "notes.xls"), workbook::Error);
}

}  // namespace
