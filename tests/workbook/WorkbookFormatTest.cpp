// The same cases over both file formats, on one template made by LibreOffice
// in both (tests/data/workbook/make_template.py): every file written is read
// back by the engine, by xlrd or openpyxl, and by LibreOffice.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "BiffStructure.h"
#include "ReadBack.h"
#include "TestDir.h"
#include "Workbook.h"

namespace fs = std::filesystem;
using workbook::Workbook;

namespace {

struct Xls {
  static constexpr const char* kExtension = ".xls";
  static constexpr int kRowLimit = 65536;
  static constexpr int kColumnLimit = 256;
};
struct Xlsx {
  static constexpr const char* kExtension = ".xlsx";
  static constexpr int kRowLimit = 1048576;
  static constexpr int kColumnLimit = 16384;
};

constexpr wchar_t kSheet[] = L"表一";
constexpr char kSheetUtf8[] = "表一";

template <typename Format>
class WorkbookFormatTest : public testing::Test {
 protected:
  static fs::path Template() {
    return fs::path(BOM_TEST_DATA_DIR) / (std::string("workbook/template") + Format::kExtension);
  }

  std::unique_ptr<Workbook> OpenTemplate() { return workbook::OpenWorkbook(Template()); }

  fs::path SaveAs(const Workbook& book, const std::string& name) {
    fs::path file = dir_.path() / (name + Format::kExtension);
    book.SaveAs(file);
    return file;
  }

  // The engine reads the file again as it wrote it; so do the independent
  // readers, who also find every other cell of the template unchanged.
  void ExpectReadBack(const fs::path& file, const std::vector<ExpectedCell>& cells, const Workbook& written) {
    auto reopened = workbook::OpenWorkbook(file);
    for (const ExpectedCell& cell : cells) {
      std::wstring sheet = cell.sheet == kSheetUtf8 ? kSheet : L"Sheet Two";
      EXPECT_EQ(reopened->GetCellText(sheet, cell.row, cell.column),
                written.GetCellText(sheet, cell.row, cell.column))
          << cell.row << "," << cell.column;
    }
    if (file.extension() == ".xls") {
      EXPECT_EQ(BiffStructureProblems(file), "");
    }
    ExpectIndependentReadersAgree({{file, Template(), cells}}, dir_.path());
  }

  TestDir dir_;
};

struct FormatNames {
  template <typename T>
  static std::string GetName(int) {
    return std::is_same_v<T, Xls> ? "Xls" : "Xlsx";
  }
};

using Formats = testing::Types<Xls, Xlsx>;
TYPED_TEST_SUITE(WorkbookFormatTest, Formats, FormatNames);

TYPED_TEST(WorkbookFormatTest, ReadsEveryKindOfValueAsAutomationGivesItAsText) {
  auto book = this->OpenTemplate();
  EXPECT_EQ(book->GetCellText(kSheet, 1, 1), L"标题");
  EXPECT_EQ(book->GetCellText(kSheet, 1, 2), L"Rich bold");
  EXPECT_EQ(book->GetCellText(kSheet, 2, 1), L"12.5");
  EXPECT_EQ(book->GetCellText(kSheet, 2, 2), L"text");
  EXPECT_EQ(book->GetCellText(kSheet, 2, 3), L"TRUE");
  EXPECT_EQ(book->GetCellText(kSheet, 2, 4), L"25");  // a formula's cached result
  EXPECT_EQ(book->GetCellText(kSheet, 2, 6), L"#DIV/0!");
  EXPECT_EQ(book->GetCellText(kSheet, 4, 3), L"3");  // inside a run of numbers
  EXPECT_EQ(book->GetCellText(kSheet, 3, 3), L"");   // a formatted blank
  EXPECT_EQ(book->GetCellText(kSheet, 5, 2), L"0123");
  EXPECT_EQ(book->GetCellText(kSheet, 200, 200), L"");
}

TYPED_TEST(WorkbookFormatTest, SheetsComeInTabOrderAndAreFoundWithoutRegardToCase) {
  auto book = this->OpenTemplate();
  EXPECT_THAT(book->SheetNames(), testing::ElementsAre(kSheet, L"Sheet Two", L"公式"));
  EXPECT_EQ(book->GetCellText(L"SHEET two", 1, 1), L"second");
}

TYPED_TEST(WorkbookFormatTest, MissingSheetOrCellOutsideTheFormatIsAnErrorThatChangesNothing) {
  auto book = this->OpenTemplate();
  EXPECT_THROW(book->SetCellText(L"bom", 1, 1, L"x"), workbook::Error);
  EXPECT_THROW(book->GetCellText(L"bom", 1, 1), workbook::Error);
  for (auto [row, column] :
       {std::pair{0, 1}, {1, 0}, {TypeParam::kRowLimit + 1, 1}, {1, TypeParam::kColumnLimit + 1}}) {
    EXPECT_THROW(book->SetCellText(kSheet, row, column, L"x"), workbook::Error) << row << "," << column;
    EXPECT_THROW(book->GetCellText(kSheet, row, column), workbook::Error) << row << "," << column;
  }
  book->SetCellText(kSheet, TypeParam::kRowLimit, TypeParam::kColumnLimit, L"corner");
  EXPECT_EQ(book->GetCellText(kSheet, TypeParam::kRowLimit, TypeParam::kColumnLimit), L"corner");
  EXPECT_EQ(book->GetCellText(kSheet, 1, 1), L"标题");
  try {
    book->SetCellText(L"bom", 1, 1, L"x");
  } catch (const workbook::Error& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("\"bom\""));
  }
}

TYPED_TEST(WorkbookFormatTest, CellsOfAnArrayFormulaCannotBeOverwrittenAlone) {
  auto book = this->OpenTemplate();
  EXPECT_THROW(book->SetCellText(L"公式", 1, 3, L"x"), workbook::Error);  // the array's anchor
  EXPECT_THROW(book->SetCellText(L"公式", 1, 4, L"x"), workbook::Error);  // inside the array
  EXPECT_EQ(book->GetCellText(L"公式", 1, 4), L"2");
  book->SetCellText(L"公式", 3, 2, L"5");  // a formula of its own
  EXPECT_EQ(book->GetCellText(L"公式", 3, 2), L"5");
}

TYPED_TEST(WorkbookFormatTest, TextThatExcelTakesAsNumberIsStoredAsNumber) {
  auto book = this->OpenTemplate();
  const std::vector<std::pair<std::wstring, std::wstring>> typed = {
      {L"零件 A", L"零件 A"}, {L"12.5", L"12.5"},        {L"3", L"3"},
      {L"007", L"7"},         {L" 1,234.5 ", L"1234.5"}, {L"2024.05.06", L"2024.05.06"},
      {L"1.10", L"1.1"},      {L"-2E3", L"-2000"}};
  // From column H on: column G is formatted as text.
  for (size_t i = 0; i < typed.size(); ++i)
    book->SetCellText(kSheet, 10, static_cast<int>(i) + 8, typed[i].first);
  for (size_t i = 0; i < typed.size(); ++i)
    EXPECT_EQ(book->GetCellText(kSheet, 10, static_cast<int>(i) + 8), typed[i].second);

  fs::path file = this->SaveAs(*book, "typed");
  this->ExpectReadBack(
      file,
      {TextCell(kSheetUtf8, 10, 8, "零件 A"), NumberCell(kSheetUtf8, 10, 9, 12.5, "12.5"),
       NumberCell(kSheetUtf8, 10, 10, 3, "3"), NumberCell(kSheetUtf8, 10, 11, 7, "7"),
       NumberCell(kSheetUtf8, 10, 12, 1234.5, "1234.5"), TextCell(kSheetUtf8, 10, 13, "2024.05.06"),
       NumberCell(kSheetUtf8, 10, 14, 1.1, "1.1"), NumberCell(kSheetUtf8, 10, 15, -2000, "-2000")},
      *book);
}

TYPED_TEST(WorkbookFormatTest, OverwrittenCellsKeepTheirFormatAndTheirNeighbours) {
  auto book = this->OpenTemplate();
  book->SetCellText(kSheet, 1, 1, L"新标题");  // bold text
  book->SetCellText(kSheet, 3, 3, L"inside");  // inside a run of formatted blanks
  book->SetCellText(kSheet, 4, 3, L"9");       // inside a run of numbers
  book->SetCellText(kSheet, 4, 1, L"first");   // at the start of that run
  book->SetCellText(kSheet, 5, 2, L"0042");    // formatted as text: stays text
  book->SetCellText(kSheet, 5, 1, L"17");      // formatted as text, blank before
  book->SetCellText(kSheet, 2, 2, L"");        // the value goes, the format stays
  book->SetCellText(kSheet, 2, 4, L"formula gone");
  book->SetCellText(kSheet, 8, 7, L"17");  // new, in a column formatted as text
  book->SetCellText(L"Sheet Two", 1, 1, L"第二页");

  fs::path file = this->SaveAs(*book, "overwritten");
  this->ExpectReadBack(file,
                       {TextCell(kSheetUtf8, 1, 1, "新标题"), TextCell(kSheetUtf8, 3, 3, "inside"),
                        NumberCell(kSheetUtf8, 4, 3, 9, "9"), TextCell(kSheetUtf8, 4, 1, "first"),
                        TextCell(kSheetUtf8, 5, 2, "0042"), TextCell(kSheetUtf8, 5, 1, "17"),
                        EmptyCell(kSheetUtf8, 2, 2), TextCell(kSheetUtf8, 2, 4, "formula gone"),
                        NumberCell(kSheetUtf8, 4, 2, 2, "2"), NumberCell(kSheetUtf8, 4, 4, 4, "4"),
                        TextCell(kSheetUtf8, 8, 7, "17"), TextCell("Sheet Two", 1, 1, "第二页")},
                       *book);
}

// Row 5 holds two cells formatted as text with borders, and nothing from
// column C on; the template's rows end at 7.
TYPED_TEST(WorkbookFormatTest, NewRowsBelowTheTemplateTakeTheModelRowsFormats) {
  auto book = this->OpenTemplate();
  book->SetModelRow(kSheet, 5);
  std::vector<ExpectedCell> cells;
  for (int row : {8, 9, 500}) {
    book->SetCellText(kSheet, row, 1, L"17");
    book->SetCellText(kSheet, row, 2, L"0042");
    book->SetCellText(kSheet, row, 3, L"3");
    cells.push_back(TextCell(kSheetUtf8, row, 1, "17"));
    cells.back().formatOfTemplateRow = 5;
    cells.push_back(TextCell(kSheetUtf8, row, 2, "0042"));
    cells.back().formatOfTemplateRow = 5;
    cells.push_back(NumberCell(kSheetUtf8, row, 3, 3, "3"));
  }
  EXPECT_THROW(book->SetModelRow(L"no such sheet", 5), workbook::Error);
  EXPECT_THROW(book->SetModelRow(kSheet, 0), workbook::Error);
  fs::path file = this->SaveAs(*book, "model_row");
  this->ExpectReadBack(file, cells, *book);

  // An empty row of the template does not follow the model.
  auto inside = this->OpenTemplate();
  inside->SetModelRow(kSheet, 5);
  inside->SetCellText(kSheet, 6, 1, L"0042");
  EXPECT_EQ(inside->GetCellText(kSheet, 6, 1), L"42");
}

TYPED_TEST(WorkbookFormatTest, LargeTableWithLongTextsReadsBackEverywhere) {
  auto book = this->OpenTemplate();
  std::vector<ExpectedCell> cells;
  // Long texts make the string table run over many CONTINUE records, with
  // characters of one string split between them.
  std::wstring longChinese(3000, L'齿');
  std::string longChineseUtf8;
  for (int i = 0; i < 3000; ++i) longChineseUtf8 += "齿";
  std::wstring longLatin(9000, L'x');
  book->SetCellText(kSheet, 20, 1, longChinese);
  book->SetCellText(kSheet, 20, 2, longLatin);
  cells.push_back(TextCell(kSheetUtf8, 20, 1, longChineseUtf8));
  cells.push_back(TextCell(kSheetUtf8, 20, 2, std::string(9000, 'x')));
  for (int row = 21; row < 621; ++row) {
    std::string rowText = std::to_string(row);
    book->SetCellText(kSheet, row, 1, L"齿轮" + std::wstring(rowText.begin(), rowText.end()));
    book->SetCellText(kSheet, row, 2, std::wstring(rowText.begin(), rowText.end()));
    book->SetCellText(kSheet, row, 10, L"GB/T 5783");
    cells.push_back(TextCell(kSheetUtf8, row, 1, "齿轮" + rowText));
    cells.push_back(NumberCell(kSheetUtf8, row, 2, row, rowText));
    cells.push_back(TextCell(kSheetUtf8, row, 10, "GB/T 5783"));
  }
  fs::path file = this->SaveAs(*book, "large");
  this->ExpectReadBack(file, cells, *book);
}

}  // namespace
