#include "ParamMergeOrder.h"

#include <gtest/gtest.h>

#include "HostControl.h"
#include "ModelDef.h"
#include "ParamDefs.h"
#include "PluginHost.h"
#include "RowNumber.h"
#include "TkParam.h"

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

TEST(ParamMergeOrder, RowNumbersHaveTwoDigitsAtLeast) {
  EXPECT_EQ(RowNumberText(0), L"01");
  EXPECT_EQ(RowNumberText(9), L"10");
  EXPECT_EQ(RowNumberText(99), L"100");
  EXPECT_EQ(RowNumberText(0, 3), L"001");
  EXPECT_EQ(RowNumberText(999, 3), L"1000");
}

class JoinParamValuesTest : public testing::Test {
 protected:
  TestDir dir;
  PluginHost host{dir};
};

TEST_F(JoinParamValuesTest, ValuesFollowEachOtherWithoutSeparator) {
  sim::ModelDef def;
  def.parameters = {TextParam(L"图号", L"JSQ-01"), RealParam(L"长度", 12.75), IntParam(L"数量", 3),
                    IntParam(L"外购", 1, PRO_PARAM_BOOLEAN)};
  ProMdl mdl = sim::AddModel(L"shaft.prt", def);
  CTkParam param;
  EXPECT_EQ(JoinParamValues(param, mdl, {L"图号", L"长度", L"数量", L"外购"}, 2), L"JSQ-0112.753TRUE");
  EXPECT_EQ(JoinParamValues(param, mdl, {L"长度", L"长度"}, 0), L"1313") << "a name twice joins twice";
  EXPECT_EQ(JoinParamValues(param, mdl, {L"图号", L"没有", L"数量"}, 2), L"JSQ-013");
  EXPECT_EQ(JoinParamValues(param, mdl, {}, 2), L"");
}

}  // namespace
