#include "CommaLocale.h"
#include "CellValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace workbook {
namespace {

TEST(TypedNumber, TextsExcelTakesAsNumbers) {
  EXPECT_EQ(ParseTypedNumber(L"12.5"), 12.5);
  EXPECT_EQ(ParseTypedNumber(L"  -3 "), -3);
  EXPECT_EQ(ParseTypedNumber(L"+4"), 4);
  EXPECT_EQ(ParseTypedNumber(L"007"), 7);
  EXPECT_EQ(ParseTypedNumber(L".5"), 0.5);
  EXPECT_EQ(ParseTypedNumber(L"5."), 5);
  EXPECT_EQ(ParseTypedNumber(L"1,234,567.25"), 1234567.25);
  EXPECT_EQ(ParseTypedNumber(L"1.5E3"), 1500);
  EXPECT_EQ(ParseTypedNumber(L"2e-2"), 0.02);
}

// Short decimals take a quicker way than the library's conversion; both
// must give the nearest double, and -0 keeps its sign.
TEST(TypedNumber, DecimalsReadAsTheNearestDouble) {
  std::vector<std::string> texts = {"0.1",
                                    "0.3",
                                    "2.675",
                                    "9.999999999999999",
                                    "0.000000000000001",
                                    "123456789012345",
                                    "1234567890123456",
                                    "12345678901234.5",
                                    "-0.7",
                                    "99999999999999.99",
                                    "4503599627370497.5"};
  for (int i = 1; i < 3000; i += 7) {
    texts.push_back(std::to_string(i / 1000) + "." + std::to_string(i % 1000 + 1000).substr(1));
  }
  for (const std::string& text : texts) {
    std::optional<double> parsed = ParseTypedNumber(std::wstring(text.begin(), text.end()));
    ASSERT_TRUE(parsed.has_value()) << text;
    EXPECT_EQ(*parsed, std::strtod(text.c_str(), nullptr)) << text;
  }
  EXPECT_TRUE(std::signbit(*ParseTypedNumber(L"-0")));
  EXPECT_TRUE(std::signbit(*ParseTypedNumber(L"-0.00")));
}

TEST(TypedNumber, TextsThatStayText) {
  for (const wchar_t* text :
       {L"",    L" ",  L"-",  L".",   L"1.2.3", L"2024.05.06", L"1,23", L"12,3456", L",123", L"1e",
        L"1e+", L"M8", L"8M", L"50%", L"$5",    L"1 2",        L"0x10", L"1e999",   L"inf",  L"nan"}) {
    EXPECT_FALSE(ParseTypedNumber(text).has_value()) << text;
  }
}

TEST(NumberText, AsAutomationConvertsIt) {
  EXPECT_EQ(FormatNumber(12.5), L"12.5");
  EXPECT_EQ(FormatNumber(3), L"3");
  EXPECT_EQ(FormatNumber(-0.0), L"0");
  EXPECT_EQ(FormatNumber(0.1 + 0.2), L"0.3");
  EXPECT_EQ(FormatNumber(1e20), L"1E+20");
  EXPECT_EQ(FormatNumber(123456789012345678.0), L"1.23456789012346E+17");
  CommaLocale comma;
  EXPECT_EQ(FormatNumber(12.5), L"12.5");
  EXPECT_EQ(FormatNumber(1.5e-7), L"1.5E-07");
}

TEST(CellReference, ColumnLettersBothWays) {
  EXPECT_EQ(FormatCellRef(1, 1), "A1");
  EXPECT_EQ(FormatCellRef(38, 26), "Z38");
  EXPECT_EQ(FormatCellRef(2, 27), "AA2");
  EXPECT_EQ(FormatCellRef(1048576, 16384), "XFD1048576");
  auto ref = ParseCellRef("xfd1048576");
  ASSERT_TRUE(ref.has_value());
  EXPECT_EQ(ref->row, 1048576);
  EXPECT_EQ(ref->column, 16384);
  EXPECT_FALSE(ParseCellRef("A0").has_value());
  EXPECT_FALSE(ParseCellRef("12").has_value());
  EXPECT_FALSE(ParseCellRef("A").has_value());
  EXPECT_FALSE(ParseCellRef("A1B").has_value());
}

}  // namespace
}  // namespace workbook
