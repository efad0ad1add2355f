#include "ParamData.h"

#include <gtest/gtest.h>

TEST(ParamDataTest, KindsTranslateExactlyAndUnknownTextsKeepTheStartCode) {
  int code = 99;
  EXPECT_EQ(PropCnToKind(L"参数", code), 0);
  EXPECT_EQ(code, 0);
  EXPECT_EQ(PropCnToKind(L"系统单位", code), 0);
  EXPECT_EQ(code, 2);
  EXPECT_EQ(PropCnToKind(L"材料", code), -4);
  EXPECT_EQ(code, -1);
  EXPECT_EQ(PropCnToKind(L" 参数", code), -4) << "no trimming";
}

TEST(ParamDataTest, ValueTypesCompareUpperCasedAndFallBackToNoSuchParam) {
  int code = 0;
  EXPECT_EQ(ParamCnToType(L"实数", code), 0);
  EXPECT_EQ(code, 50);
  EXPECT_EQ(ParamCnToType(L"整数", code), 0);
  EXPECT_EQ(code, 52);
  EXPECT_EQ(ParamCnToType(L"real", code), -4);
  EXPECT_EQ(code, 57);

  std::wstring text;
  ParamTypeToCn(52, text);
  EXPECT_EQ(text, L"整数");
  ParamTypeToCn(53, text);
  EXPECT_EQ(text, L"字符串") << "a boolean has no text of its own";
}

TEST(ParamDataTest, DesignationAlwaysSucceedsAndDefaultsToNo) {
  int flag = 7;
  EXPECT_EQ(DesignationCnToFlag(L"是", flag), 0);
  EXPECT_EQ(flag, 1);
  EXPECT_EQ(DesignationCnToFlag(L"yes", flag), 0);
  EXPECT_EQ(flag, 0);
  std::wstring text;
  DesignationFlagToCn(1, text);
  EXPECT_EQ(text, L"是");
  DesignationFlagToCn(5, text);
  EXPECT_EQ(text, L"否");
}
