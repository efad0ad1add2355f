#include "ParamMergeOrder.h"

#include <gtest/gtest.h>

#include "RowNumber.h"

namespace {

using Names = std::vector<std::wstring>;

TEST(ParamMergeOrder, MoveDownOfTheLastNameDropsIt) {
  Names names{L"A", L"B", L"C"};
  MoveMergeNameDown(names, 2);
  EXPECT_EQ(names, (Names{L"A", L"B"}));
  MoveMergeNameDown(names, 0);
  EXPECT_EQ(names, (Names{L"B", L"A"})) << "the last but one is appended behind the last";
  names = {L"A", L"B", L"C", L"D"};
  MoveMergeNameDown(names, 1);
  EXPECT_EQ(names, (Names{L"A", L"C", L"B", L"D"}));
  MoveMergeNameDown(names, 4);
  EXPECT_EQ(names.size(), 4u);
}

TEST(ParamMergeOrder, MoveUpAndRemoveKeepTheFirstNameAndRepeats) {
  Names names{L"A", L"B", L"A"};
  MoveMergeNameUp(names, 0);
  EXPECT_EQ(names, (Names{L"A", L"B", L"A"}));
  MoveMergeNameUp(names, 2);
  EXPECT_EQ(names, (Names{L"A", L"A", L"B"}));
  RemoveMergeName(names, -1);
  RemoveMergeName(names, 3);
  EXPECT_EQ(names.size(), 3u);
  RemoveMergeName(names, 1);
  EXPECT_EQ(names, (Names{L"A", L"B"}));
}

}  // namespace
