// Toolkit arrays and the strings the host hands out.
#include "ProArray.h"
#include "ProMdl.h"
#include "ProWstring.h"
#include "SimTest.h"

namespace {

using SimMemory = SimTest;

std::vector<int> Contents(ProArray array) {
  int size = -1;
  EXPECT_EQ(ProArraySizeGet(array, &size), PRO_TK_NO_ERROR);
  const int* ints = static_cast<const int*>(array);
  return std::vector<int>(ints, ints + std::max(size, 0));
}

TEST_F(SimMemory, ArrayAppendsInsertsAndGrows) {
  ProArray array = nullptr;
  ASSERT_EQ(ProArrayAlloc(0, sizeof(int), 1, &array), PRO_TK_NO_ERROR);
  for (int i = 0; i < 100; ++i)
    ASSERT_EQ(ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, 1, &i), PRO_TK_NO_ERROR);
  int front[2] = {-2, -1};
  ASSERT_EQ(ProArrayObjectAdd(&array, 0, 2, front), PRO_TK_NO_ERROR);
  int middle = 500;
  ASSERT_EQ(ProArrayObjectAdd(&array, 52, 1, &middle), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProArrayObjectAdd(&array, 104, 1, &middle), PRO_TK_BAD_INPUTS);

  std::vector<int> expected{-2, -1};
  for (int i = 0; i < 100; ++i) expected.push_back(i);
  expected.insert(expected.begin() + 52, 500);
  EXPECT_EQ(Contents(array), expected);
  EXPECT_EQ(ProArrayFree(&array), PRO_TK_NO_ERROR);
  EXPECT_EQ(array, nullptr);
}

TEST_F(SimMemory, SizeSetZeroFillsAndFreedOrForeignArraysAreRefused) {
  ProArray array = nullptr;
  ASSERT_EQ(ProArrayAlloc(2, sizeof(int), 4, &array), PRO_TK_NO_ERROR);
  static_cast<int*>(array)[0] = 7;
  ASSERT_EQ(ProArraySizeSet(&array, 5), PRO_TK_NO_ERROR);
  EXPECT_EQ(Contents(array), (std::vector<int>{7, 0, 0, 0, 0}));

  ProArray kept = array;
  ASSERT_EQ(ProArrayFree(&array), PRO_TK_NO_ERROR);
  int size = 0;
  EXPECT_EQ(ProArrayFree(&kept), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProArraySizeGet(kept, &size), PRO_TK_BAD_INPUTS);
  int local[4] = {};
  ProArray foreign = local;
  EXPECT_EQ(ProArrayObjectAdd(&foreign, -1, 1, local), PRO_TK_BAD_INPUTS);
}

TEST_F(SimMemory, HostStringsAreFreedOnce) {
  ProMdl part = sim::AddModel(L"p.prt", {});
  wchar_t* common = nullptr;
  ASSERT_EQ(ProMdlCommonnameGet(part, &common, nullptr), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProWstringFree(common), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProWstringFree(common), PRO_TK_BAD_INPUTS);
  wchar_t own[] = L"own";
  EXPECT_EQ(ProWstringFree(own), PRO_TK_BAD_INPUTS);

  ProArray strings = nullptr;
  ASSERT_EQ(ProArrayAlloc(0, sizeof(wchar_t*), 1, &strings), PRO_TK_NO_ERROR);
  for (int i = 0; i < 2; ++i) {
    ASSERT_EQ(ProMdlCommonnameGet(part, &common, nullptr), PRO_TK_NO_ERROR);
    ASSERT_EQ(ProArrayObjectAdd(&strings, -1, 1, &common), PRO_TK_NO_ERROR);
  }
  EXPECT_EQ(ProWstringproarrayFree(static_cast<wchar_t**>(strings)), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProWstringFree(common), PRO_TK_BAD_INPUTS) << "freed with its array";
}

TEST_F(SimMemory, StringConversionsGoThroughTheNarrowCodePage) {
  char narrow[64] = "齿轮 gear";
  wchar_t wide[64];
  EXPECT_EQ(ProStringToWstring(wide, narrow), wide);
  EXPECT_STREQ(wide, L"齿轮 gear");
  char back[64];
  EXPECT_EQ(ProWstringToString(back, wide), back);
  EXPECT_STREQ(back, narrow);
}

}  // namespace
