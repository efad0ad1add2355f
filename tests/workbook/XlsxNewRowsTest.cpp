// Rows a worksheet did not have, and texts its string table did not have,
// are kept apart from the parts' trees until the workbook is saved: written
// in any order, between and below the template's rows, overwritten and read
// back, they must come out as one sheet in the order SpreadsheetML requires,
// with the shared strings escaped and counted right.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "PackageParts.h"
#include "ReadBack.h"
#include "TestDir.h"
#include "Workbook.h"

namespace fs = std::filesystem;

namespace {

// Excel's file: rows 1, 4 and 5 with "spans", a shared string counted twice.
const fs::path kTemplate = fs::path(BOM_SHARED_TESTDATA_DIR) / "xlsx" / "hyperlink14.xlsx";
constexpr wchar_t kSheet[] = L"Sheet1";

// Each row's number and its cells' columns, in the order the part holds them.
std::vector<std::pair<int, std::vector<std::string>>> RowsOf(const std::string& sheetXml) {
  std::vector<std::pair<int, std::vector<std::string>>> rows;
  std::regex element(R"re(<row r="(\d+)"|<c r="([A-Z]+)\d+")re");
  for (std::sregex_iterator it(sheetXml.begin(), sheetXml.end(), element), end; it != end; ++it) {
    if ((*it)[1].matched) {
      rows.push_back({std::stoi((*it)[1]), {}});
    } else if (!rows.empty()) {
      rows.back().second.push_back((*it)[2]);
    }
  }
  return rows;
}

long long Count(const std::string& xml, const std::string& text) {
  long long count = 0;
  for (size_t at = xml.find(text); at != std::string::npos; at = xml.find(text, at + 1)) ++count;
  return count;
}

TEST(XlsxNewRows, WrittenInAnyOrderTheyJoinTheTemplatesRowsInOrder) {
  auto book = workbook::OpenWorkbook(kTemplate);
  book->SetCellText(kSheet, 9, 3, L"below");
  book->SetCellText(kSheet, 3, 2, L"between");
  book->SetCellText(kSheet, 2, 4, L"2.5");
  book->SetCellText(kSheet, 2, 1, L"first column last");
  book->SetCellText(kSheet, 7, 2, L"7");
  book->SetCellText(kSheet, 4, 7, L"new cell of a template row");
  book->SetCellText(kSheet, 3, 1, L"text, then a number");
  book->SetCellText(kSheet, 3, 1, L"12");
  book->SetCellText(kSheet, 7, 2, L"a number, then text");
  book->SetCellText(kSheet, 2, 4, L"");
  book->SetCellText(kSheet, 1, 1, L"Perl Home");  // a template string, now referred to by a new cell too
  book->SetCellText(kSheet, 6, 1, L"Perl Home");

  // Read before saving, as ExcelApp reads what it wrote.
  EXPECT_EQ(book->GetCellText(kSheet, 3, 1), L"12");
  EXPECT_EQ(book->GetCellText(kSheet, 7, 2), L"a number, then text");
  EXPECT_EQ(book->GetCellText(kSheet, 2, 4), L"");
  EXPECT_EQ(book->GetCellText(kSheet, 2, 1), L"first column last");
  EXPECT_EQ(book->GetCellText(kSheet, 8, 1), L"");

  TestDir dir;
  fs::path file = dir.path() / "new_rows.xlsx";
  book->SaveAs(file);
  std::map<std::string, std::string> parts = ZipParts(file);
  const std::string& sheet = parts["xl/worksheets/sheet1.xml"];
  using Row = std::pair<int, std::vector<std::string>>;
  EXPECT_THAT(RowsOf(sheet), testing::ElementsAre(Row{1, {"A"}}, Row{2, {"A", "D"}}, Row{3, {"A", "B"}},
                                                  Row{4, {"C", "D", "E", "G"}}, Row{5, {"C", "D", "E"}},
                                                  Row{6, {"A"}}, Row{7, {"B"}}, Row{9, {"C"}}));
  EXPECT_THAT(sheet, testing::HasSubstr("<dimension ref=\"A1:G9\"/>"));
  EXPECT_THAT(sheet, testing::HasSubstr("<row r=\"4\" spans=\"1:7\">"));
  EXPECT_THAT(sheet, testing::HasSubstr("<mergeCells count=\"1\"><mergeCell ref=\"C4:E5\"/></mergeCells>"));

  // Every reference to a shared string is counted once, whichever way its
  // cell went.
  const std::string& strings = parts["xl/sharedStrings.xml"];
  long long references = Count(sheet, "t=\"s\"");
  EXPECT_EQ(references, 8);
  EXPECT_THAT(strings, testing::HasSubstr("count=\"" + std::to_string(references) + "\""));
  EXPECT_EQ(Count(strings, "<si>"), 7);  // "Perl Home" once

  ExpectIndependentReadersAgree(
      {{file,
        kTemplate,
        {TextCell("Sheet1", 9, 3, "below"), TextCell("Sheet1", 3, 2, "between"), EmptyCell("Sheet1", 2, 4),
         TextCell("Sheet1", 2, 1, "first column last"),
         TextCell("Sheet1", 4, 7, "new cell of a template row"), NumberCell("Sheet1", 3, 1, 12, "12"),
         TextCell("Sheet1", 7, 2, "a number, then text"), TextCell("Sheet1", 1, 1, "Perl Home"),
         TextCell("Sheet1", 6, 1, "Perl Home")}}},
      dir.path());
}

TEST(XlsxNewStrings, MarkupBlanksAndEscapesReadBackAsWritten) {
  const std::vector<std::pair<std::wstring, std::string>> texts = {
      {L"a&b<c>d\"e'f", "a&b<c>d\"e'f"},
      {L" lead and trail ", " lead and trail "},
      {L"two  inside", "two  inside"},
      {L"tab\there", "tab\there"},
      {L"_x0041_ is no escape", "_x0041_ is no escape"},
      {L"齿轮 \U0001F600", "齿轮 \U0001F600"}};
  auto book = workbook::OpenWorkbook(kTemplate);
  std::vector<ExpectedCell> cells;
  for (size_t i = 0; i < texts.size(); ++i) {
    int row = 10 + static_cast<int>(i);
    book->SetCellText(kSheet, row, 1, texts[i].first);
    cells.push_back(TextCell("Sheet1", row, 1, texts[i].second));
  }
  TestDir dir;
  fs::path file = dir.path() / "strings.xlsx";
  book->SaveAs(file);
  // The readers here keep blanks either way; Excel needs to be told.
  EXPECT_THAT(ZipParts(file)["xl/sharedStrings.xml"],
              testing::HasSubstr("<si><t xml:space=\"preserve\"> lead and trail </t></si>"));
  auto reopened = workbook::OpenWorkbook(file);
  for (size_t i = 0; i < texts.size(); ++i)
    EXPECT_EQ(reopened->GetCellText(kSheet, 10 + static_cast<int>(i), 1), texts[i].first) << i;
  ExpectIndependentReadersAgree({{file, kTemplate, cells}}, dir.path());
}

}  // namespace
