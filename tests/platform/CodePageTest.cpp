#include <gtest/gtest.h>

#include "CodePage.h"
#include "CommaLocale.h"
#include "DebugOutput.h"

TEST(CodePage, ChineseTextRoundTripsThroughTheNarrowCodePage) {
  std::wstring text = L"零件清单显示 M8×30 □";
  std::string narrow = platform::ToNarrow(text);
  EXPECT_EQ(narrow,
            "\xE9\x9B\xB6\xE4\xBB\xB6\xE6\xB8\x85\xE5\x8D\x95\xE6\x98\xBE\xE7\xA4\xBA M8\xC3\x97"
            "30 \xE2\x96\xA1");
  EXPECT_EQ(platform::ToWide(narrow), text);
}

TEST(CodePage, InvalidBytesBecomeReplacementCharacters) {
  EXPECT_EQ(platform::ToWide("a\xFF"
                             "b"),
            L"a\xFFFD"
            L"b");
  EXPECT_EQ(platform::ToWide("\xE9\x9B"), L"\xFFFD\xFFFD");  // cut short
}

TEST(CodePage, NumbersConvertWithAtoiRules) {
  EXPECT_EQ(platform::WideToInt(L"12#note"), 12);
  EXPECT_EQ(platform::WideToInt(L""), 0);
  EXPECT_EQ(platform::WideToInt(L"abc"), 0);
  EXPECT_DOUBLE_EQ(platform::WideToDouble(L" 2.5kg"), 2.5);
}

TEST(CodePage, NumbersReadAndWriteWithADecimalPointUnderACommaLocale) {
  CommaLocale comma;
  EXPECT_DOUBLE_EQ(platform::WideToDouble(L"3.5"), 3.5);
  EXPECT_DOUBLE_EQ(platform::WideToDouble(L" -2.25e1mm"), -22.5);
  EXPECT_DOUBLE_EQ(platform::WideToDouble(L"3,5"), 3.0);
  EXPECT_EQ(platform::FormatFixed(5.4, 2), L"5.40");
  EXPECT_EQ(platform::FormatFixed(-0.125, 1), L"-0.1");
  EXPECT_EQ(platform::FormatFixed(2.5, 0), L"2");
  EXPECT_EQ(platform::FormatFixed(1e20, 1), L"100000000000000000000.0");
  EXPECT_EQ(platform::ParseNumber("-2.5e1"), -25.0);
  EXPECT_EQ(platform::ParseNumber("+7"), 7.0);
  for (const char* refused : {"5,4", "", " 1", "1 ", "nan", "inf", "1e999", "1.2.3", "0x10", "+"})
    EXPECT_FALSE(platform::ParseNumber(refused).has_value()) << refused;
}

TEST(DebugOutput, GoesToTheInstalledSinkOnly) {
  std::vector<std::wstring> seen;
  auto previous = platform::SetDebugSink([&](std::wstring_view text) { seen.emplace_back(text); });
  platform::OutputDebugString(L"@_排序 3");
  platform::SetDebugSink(previous);
  EXPECT_EQ(seen, std::vector<std::wstring>{L"@_排序 3"});
}
