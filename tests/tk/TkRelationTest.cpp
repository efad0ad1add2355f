// CTkRelation over the simulated host's relation sets: the sets of a model
// and of its components, the lines read and written, and what a write
// answers when the host refuses the lines or their regeneration fails.
#include <gtest/gtest.h>

#include "CallLog.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "ProParameter.h"
#include "TkModel.h"
#include "TkParam.h"
#include "TkRelation.h"

namespace {

class TkRelationTest : public testing::Test {
 protected:
  TkRelationTest() {
    sim::ModelDef def;
    def.parameters.resize(2);
    def.parameters[0].name = L"D1";
    def.parameters[0].type = PRO_PARAM_DOUBLE;
    def.parameters[0].number = 20;
    def.parameters[1].name = L"LENGTH";
    def.parameters[1].type = PRO_PARAM_DOUBLE;
    def.parameters[1].number = 1;
    def.relations = {L"/* 长度", L"LENGTH = D1 * 2"};
    part_ = sim::AddModel(L"pin.prt", def);
    sim::ModelDef top;
    top.type = PRO_MDL_ASSEMBLY;
    top.components = {{4, L"pin.prt"}, {6, L"pin.prt"}};
    top.components[1].relations = {L"A = 1"};
    asm_ = sim::AddModel(L"top.asm", top);
  }

  std::vector<std::wstring> Lines(const ProRelset& relset) const {
    std::vector<std::wstring> lines{L"left over"};
    EXPECT_EQ(relation_.GetRelationLines(relset, lines), 0);
    return lines;
  }

  ProRelset ModelSet(ProMdl mdl) const {
    ProRelset relset{};
    EXPECT_EQ(relation_.GetMdlRelset(mdl, relset), 0);
    return relset;
  }

  std::wstring Length() const { return param_.GetMdlParamValue(part_, L"LENGTH", 1); }

  TestDir dir_;
  PluginHost host_{dir_};
  ProMdl part_ = nullptr;
  ProMdl asm_ = nullptr;
  CTkRelation relation_;
  CTkParam param_;
};

}  // namespace

TEST_F(TkRelationTest, LinesOfTheModelAndOfEachComponentFeature) {
  EXPECT_EQ(Lines(ModelSet(part_)), (std::vector<std::wstring>{L"/* 长度", L"LENGTH = D1 * 2"}));
  std::vector<TkModelAsmCmp> cmps;
  CTkModel().GetAllComponent2(asm_, cmps);
  ASSERT_EQ(cmps.size(), 2u);
  ProRelset first{};
  ProRelset second{};
  ASSERT_EQ(relation_.GetItemRelset(cmps[0].feature, first), 0);
  ASSERT_EQ(relation_.GetItemRelset(cmps[1].feature, second), 0);
  EXPECT_TRUE(Lines(first).empty()) << "the output is emptied first";
  EXPECT_EQ(Lines(second), std::vector<std::wstring>{L"A = 1"});
  ProRelset none{};
  EXPECT_NE(relation_.GetMdlRelset(nullptr, none), 0);
}

TEST_F(TkRelationTest, WritingRegeneratesSoAnAssignmentChangesItsParameter) {
  ProRelset relset = ModelSet(part_);
  ASSERT_EQ(relation_.SetRelationLines(relset, {L"D1 = 7.5", L"LENGTH = D1 * 2"}), 0);
  EXPECT_EQ(Length(), L"15.0");
  EXPECT_EQ(Lines(relset), (std::vector<std::wstring>{L"D1 = 7.5", L"LENGTH = D1 * 2"}));
}

TEST_F(TkRelationTest, AFailedRegenerationStillAnswersZeroOnceTheLinesAreWritten) {
  ProRelset relset = ModelSet(part_);
  EXPECT_EQ(relation_.SetRelationLines(relset, {L"LENGTH = NOSUCH + 1"}), 0);
  EXPECT_EQ(Lines(relset), std::vector<std::wstring>{L"LENGTH = NOSUCH + 1"});
  EXPECT_EQ(Length(), L"1.0");
}

TEST_F(TkRelationTest, LinesTheHostRefusesAreAnsweredAndNeitherWrittenNorRegenerated) {
  ProRelset relset = ModelSet(part_);
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  EXPECT_EQ(relation_.SetRelationLines(relset, {L"LENGTH = 3", L"IF D1 > 2"}), PRO_TK_GENERAL_ERROR);
  for (const sim::CallRecord& call : sim::CallLog()) EXPECT_NE(call.name, "ProRelsetRegenerate");
  sim::SetCallLogging(false);
  EXPECT_EQ(Lines(relset), (std::vector<std::wstring>{L"/* 长度", L"LENGTH = D1 * 2"}));
  EXPECT_EQ(Length(), L"1.0");
}

TEST_F(TkRelationTest, NoLinesEmptyTheSetAndRegenerateIt) {
  ProRelset relset = ModelSet(part_);
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  EXPECT_EQ(relation_.SetRelationLines(relset, {}), 0);
  std::vector<sim::CallRecord> calls = sim::CallLog();
  sim::SetCallLogging(false);
  EXPECT_TRUE(Lines(relset).empty());
  EXPECT_TRUE(std::any_of(calls.begin(), calls.end(),
                          [](const sim::CallRecord& call) { return call.name == "ProRelsetRegenerate"; }));
}

TEST_F(TkRelationTest, ALineLongerThanTheBufferGoesToTheHostWhole) {
  ProRelset relset = ModelSet(part_);
  std::wstring longComment = L"/* " + std::wstring(400, L'x');
  ASSERT_EQ(relation_.SetRelationLines(relset, {longComment, L"LENGTH = 2"}), 0);
  EXPECT_EQ(Lines(relset), (std::vector<std::wstring>{longComment, L"LENGTH = 2"}));
}
