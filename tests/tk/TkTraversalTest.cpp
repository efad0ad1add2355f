#include <gtest/gtest.h>

#include "HostControl.h"
#include "ProArray.h"
#include "PluginHost.h"
#include "TkModel.h"

namespace {

sim::ModelDef Assembly(std::vector<sim::ComponentDef> components,
                       std::vector<sim::FeatureDef> features = {}) {
  sim::ModelDef def;
  def.type = PRO_MDL_ASSEMBLY;
  def.components = std::move(components);
  def.features = std::move(features);
  return def;
}

class TkTraversalTest : public testing::Test {
 protected:
  std::vector<std::wstring> Walk(ProMdl top, std::vector<int>* depths = nullptr) {
    std::vector<TkModelAsmCmp> cmps(3);  // the walk empties what it is given
    EXPECT_EQ(model_.GetAllComponent2(top, cmps), 0);
    std::vector<std::wstring> names;
    for (const auto& cmp : cmps) {
      names.push_back(model_.GetMdlName(cmp.mdl));
      if (depths) depths->push_back(cmp.path.table_num);
      EXPECT_EQ(cmp.path.owner, static_cast<ProSolid>(top));
      if (cmp.path.table_num < PRO_MAX_ASSEM_LEVEL) {
        EXPECT_EQ(cmp.path.comp_id_table[cmp.path.table_num], -1);
      }
      EXPECT_EQ(cmp.path.comp_id_table[cmp.path.table_num - 1], cmp.feature.id);
    }
    return names;
  }

  TestDir dir_;
  PluginHost host_{dir_};
  CTkModel model_;
};

}  // namespace

TEST_F(TkTraversalTest, DepthFirstInFeatureOrderWithEachAssemblyBeforeItsContents) {
  host_.AddPart(L"BOLT");
  host_.AddPart(L"SHAFT");
  host_.AddPart(L"GEAR");
  sim::AddModel(L"shaft_asm.asm", Assembly({{5, L"gear.prt"}, {2, L"shaft.prt"}}));
  ProMdl top = sim::AddModel(L"top.asm", Assembly({{7, L"bolt.prt"}, {3, L"shaft_asm.asm"}, {9, L"bolt.prt"}},
                                                  {{4, L"DATUM_PLANE"}, {8, L"CSYS"}}));
  std::vector<int> depths;
  EXPECT_EQ(Walk(top, &depths),
            (std::vector<std::wstring>{L"SHAFT_ASM", L"SHAFT", L"GEAR", L"BOLT", L"BOLT"}));
  EXPECT_EQ(depths, (std::vector<int>{1, 2, 2, 1, 1}));
}

TEST_F(TkTraversalTest, PartAndMissingModelsGiveNothingYetSucceedAndSuppressedOnesAreReported) {
  ProMdl part = host_.AddPart(L"SHAFT");
  EXPECT_TRUE(Walk(part).empty());
  EXPECT_TRUE(Walk(nullptr).empty());
  // A component whose model is not in session falls out; the rest stays,
  // suppressed ones too, for the caller to judge.
  sim::ComponentDef suppressed{3, L"shaft.prt"};
  suppressed.suppressed = true;
  ProMdl top = sim::AddModel(L"top.asm", Assembly({{1, L"nowhere.prt"}, {2, L"shaft.prt"}, suppressed}));
  EXPECT_EQ(Walk(top), (std::vector<std::wstring>{L"SHAFT", L"SHAFT"}));
}

TEST_F(TkTraversalTest, VectorWalkLeavesOutDepthTwentyFiveDownAndTheHostArrayWalkGoesOnInTheSameOrder) {
  host_.AddPart(L"LEAF");
  std::wstring below = L"leaf.prt";
  for (int level = 25; level >= 1; --level) {
    std::wstring file = L"level" + std::to_wstring(level) + L".asm";
    sim::AddModel(file, Assembly({{level * 10, below}, {level * 10 + 1, L"leaf.prt"}}));
    below = file;
  }
  ProMdl top = sim::AddModel(L"top.asm", Assembly({{1, below}}));
  TkModelAsmCmp* cmps = nullptr;
  EXPECT_EQ(model_.GetAllComponent(top, cmps), PRO_TK_NO_ERROR);
  int count = 0;
  ASSERT_EQ(ProArraySizeGet(cmps, &count), PRO_TK_NO_ERROR);
  // Levels 1 to 25, and at each but the deepest its own leaf beside the
  // deeper level; the 25th level's two parts would need a 26th id.
  std::vector<TkModelAsmCmp> vectorWalk;
  model_.GetAllComponent2(top, vectorWalk);
  ASSERT_EQ(count, 25 + 24);
  EXPECT_EQ(vectorWalk.size(), 24u + 23u) << "the other walk stops at depth 24";
  for (size_t i = 0; i < 24; ++i) {
    EXPECT_EQ(model_.GetMdlName(cmps[i].mdl), model_.GetMdlName(vectorWalk[i].mdl)) << i;
    int same = 0;
    model_.IsSameCmpPath(cmps[i].path, vectorWalk[i].path, same);
    EXPECT_EQ(same, 1) << i;
  }
  EXPECT_EQ(model_.GetMdlName(cmps[24].mdl), L"LEVEL25");
  EXPECT_EQ(cmps[24].path.table_num, 25);
  EXPECT_EQ(model_.GetMdlName(cmps[count - 1].mdl), L"LEAF");
  EXPECT_EQ(cmps[count - 1].path.table_num, 2);
  ProArrayFree(reinterpret_cast<ProArray*>(&cmps));
}
