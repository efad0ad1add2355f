// How a cell's text becomes a value and a value becomes text, the way Excel
// does it when a user types into a cell and when its automation hands a value
// out as text. Shared by both file formats.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace workbook {

// A text that Excel takes as a number when typed: blanks around it, an
// optional sign, digits with an optional decimal point and exponent, and
// thousands separators in groups of three ("1,234.5"). Anything else (dates,
// percentages, currency) stays text. Leading zeros do not keep a text a text:
// "007" is 7, as in Excel.
std::optional<double> ParseTypedNumber(std::wstring_view text);

// "%.15G": 12.5 gives "12.5", 3 gives "3", 1e20 gives "1E+20".
std::wstring FormatNumber(double value);

// The number format "@" marks a cell whose typed text stays text.
bool IsTextFormatCode(std::wstring_view code);
constexpr int kBuiltInTextFormat = 49;

// "A1" references of OOXML. Rows and columns count from 1.
struct CellRef {
  int row = 0;
  int column = 0;
};
std::optional<CellRef> ParseCellRef(std::string_view reference);
std::string FormatCellRef(int row, int column);

}  // namespace workbook

namespace workbook {

// Throws Error unless 1 <= row <= rowLimit and 1 <= column <= columnLimit.
void CheckCellRange(int row, int column, int rowLimit, int columnLimit);

}  // namespace workbook
