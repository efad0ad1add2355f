#include "CellValues.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cwctype>
#include <string_view>

#include "Error.h"

namespace workbook {
namespace {

bool IsBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == 0x3000; }
bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

// The integer part with optional thousands separators; appends digits only.
bool TakeIntegerPart(std::wstring_view text, size_t& i, std::string& digits) {
  size_t start = i;
  size_t groupLength = 0;
  bool grouped = false;
  while (i < text.size() && (IsDigit(text[i]) || text[i] == L',')) {
    if (text[i] == L',') {
      if (i == start || (grouped && groupLength != 3)) return false;
      grouped = true;
      groupLength = 0;
    } else {
      digits += static_cast<char>(text[i]);
      ++groupLength;
    }
    ++i;
  }
  return !grouped || groupLength == 3;
}

// Up to 15 digits: the digits as a whole number and the power of ten are
// both exact in a double, so the one rounding of their quotient gives what
// from_chars gives, at a fraction of its cost. Most typed numbers are such.
std::optional<double> ExactQuotient(std::string_view integer, std::string_view fraction) {
  constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (integer.size() + fraction.size() > 15) return std::nullopt;
  double digits = 0;
  for (std::string_view part : {integer, fraction}) {
    for (char digit : part) digits = digits * 10 + (digit - '0');
  }
  return digits / kPowersOfTen[fraction.size()];
}

}  // namespace

std::optional<double> ParseTypedNumber(std::wstring_view text) {
  size_t i = 0;
  while (i < text.size() && IsBlank(text[i])) ++i;
  size_t end = text.size();
  while (end > i && IsBlank(text[end - 1])) --end;
  text = text.substr(0, end);

  std::string number;
  bool negative = i < text.size() && text[i] == L'-';
  if (i < text.size() && (text[i] == L'+' || negative)) {
    if (negative) number += '-';
    ++i;
  }
  std::string integer;
  if (!TakeIntegerPart(text, i, integer)) return std::nullopt;
  number += integer.empty() ? "0" : integer;
  std::string fraction;
  if (i < text.size() && text[i] == L'.') {
    ++i;
    while (i < text.size() && IsDigit(text[i])) fraction += static_cast<char>(text[i++]);
  }
  if (integer.empty() && fraction.empty()) return std::nullopt;
  if (!fraction.empty()) number += "." + fraction;
  bool hasExponent = i < text.size() && (text[i] == L'e' || text[i] == L'E');
  if (!hasExponent && i == text.size()) {
    if (auto quotient = ExactQuotient(integer, fraction)) return negative ? -*quotient : *quotient;
  }
  if (hasExponent) {
    number += 'e';
    ++i;
    if (i < text.size() && (text[i] == L'+' || text[i] == L'-')) number += static_cast<char>(text[i++]);
    size_t exponentStart = i;
    while (i < text.size() && IsDigit(text[i])) number += static_cast<char>(text[i++]);
    if (i == exponentStart) return std::nullopt;
  }
  if (i != text.size()) return std::nullopt;

  double value = 0;
  auto [rest, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc() || rest != number.data() + number.size() || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

std::wstring FormatNumber(double value) {
  if (value == 0) return L"0";
  // printf's "%.15G" under every locale.
  char buffer[32];
  auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  std::wstring text(buffer, error == std::errc() ? end : buffer);
  for (wchar_t& c : text) c = c == L'e' ? L'E' : c;
  return text;
}

bool IsTextFormatCode(std::wstring_view code) { return code == L"@"; }

std::optional<CellRef> ParseCellRef(std::string_view reference) {
  CellRef ref;
  size_t i = 0;
  while (i < reference.size() && std::isalpha(static_cast<unsigned char>(reference[i]))) {
    ref.column = ref.column * 26 + (std::toupper(static_cast<unsigned char>(reference[i])) - 'A' + 1);
    if (ref.column > 1 << 20) return std::nullopt;
    ++i;
  }
  if (i == 0 || i == reference.size()) return std::nullopt;
  auto [rest, error] = std::from_chars(reference.data() + i, reference.data() + reference.size(), ref.row);
  if (error != std::errc() || rest != reference.data() + reference.size() || ref.row < 1) return std::nullopt;
  return ref;
}

std::string FormatCellRef(int row, int column) {
  char text[32];
  char* letters = text + 8;  // filled backwards: columns have at most 5 letters
  for (int c = column; c > 0; c = (c - 1) / 26) *--letters = static_cast<char>('A' + (c - 1) % 26);
  char* end = std::to_chars(text + 8, text + sizeof text, row).ptr;
  return std::string(letters, end);
}

}  // namespace workbook

namespace workbook {

void CheckCellRange(int row, int column, int rowLimit, int columnLimit) {
  if (row < 1 || row > rowLimit || column < 1 || column > columnLimit) {
    throw Error("cell (row " + std::to_string(row) + ", column " + std::to_string(column) +
                ") is outside the sheet of " + std::to_string(rowLimit) + " rows and " +
                std::to_string(columnLimit) + " columns");
  }
}

}  // namespace workbook
