// Feature visits, component models and component paths.
#include "ProAsmcomp.h"
#include "ProSolid.h"
#include "SimTest.h"

#include <utility>
#include <vector>

namespace {

struct Walk {
  std::vector<std::pair<int, ProError>> visited;  // id and the status the visit got
  ProError (*filter)(int id) = nullptr;
  int stopAt = -1;
};

ProError Visit(ProFeature* feature, ProError status, ProAppData data) {
  auto* walk = static_cast<Walk*>(data);
  walk->visited.emplace_back(feature->id, status);
  return feature->id == walk->stopAt ? PRO_TK_USER_ABORT : PRO_TK_NO_ERROR;
}

ProError Filter(ProFeature* feature, ProAppData data) {
  return static_cast<Walk*>(data)->filter(feature->id);
}

class SimFeatures : public SimTest {
 protected:
  // Components 5 (suppressed) and 1, a datum feature 3.
  ProSolid Assembly() {
    sim::AddModel(L"p.prt", {});
    sim::ModelDef def;
    def.type = PRO_MDL_ASSEMBLY;
    def.components = {{5, L"p.prt", sim::kIdentity, true}, {1, L"p.prt"}};
    def.features = {{3, L"DATUM_PLANE"}};
    return static_cast<ProSolid>(sim::AddModel(L"a.asm", def));
  }

  ProError Run(ProSolid solid, Walk& walk) {
    return ProSolidFeatVisit(solid, Visit, walk.filter ? Filter : nullptr, &walk);
  }
};

TEST_F(SimFeatures, AllFeaturesAreVisitedInAscendingIdWithTheirOwner) {
  ProSolid asm_ = Assembly();
  std::vector<ProFeature> seen;
  auto collect = [](ProFeature* feature, ProError, ProAppData data) {
    static_cast<std::vector<ProFeature>*>(data)->push_back(*feature);
    return PRO_TK_NO_ERROR;
  };
  ASSERT_EQ(ProSolidFeatVisit(asm_, collect, nullptr, &seen), PRO_TK_NO_ERROR);
  ASSERT_EQ(seen.size(), 3u);
  for (size_t i = 0; i < seen.size(); ++i) {
    EXPECT_EQ(seen[i].id, std::vector<int>({1, 3, 5})[i]);
    EXPECT_EQ(seen[i].type, PRO_FEATURE);
    EXPECT_EQ(seen[i].owner, asm_);
  }
}

TEST_F(SimFeatures, FilterContinueSkipsAndAnyOtherAnswerReachesTheVisit) {
  Walk walk;
  walk.filter = [](int id) {
    return id == 3 ? PRO_TK_CONTINUE : id == 5 ? PRO_TK_GENERAL_ERROR : PRO_TK_NO_ERROR;
  };
  EXPECT_EQ(Run(Assembly(), walk), PRO_TK_NO_ERROR);
  EXPECT_EQ(walk.visited,
            (std::vector<std::pair<int, ProError>>{{1, PRO_TK_NO_ERROR}, {5, PRO_TK_GENERAL_ERROR}}));
}

TEST_F(SimFeatures, VisitAnswerOtherThanNoErrorStopsTheWalkAndNothingVisitedIsNotFound) {
  ProSolid assembly = Assembly();
  Walk walk;
  walk.stopAt = 3;
  EXPECT_EQ(Run(assembly, walk), PRO_TK_USER_ABORT);
  EXPECT_EQ(walk.visited.size(), 2u);
  Walk skipAll;
  skipAll.filter = [](int) { return PRO_TK_CONTINUE; };
  EXPECT_EQ(Run(assembly, skipAll), PRO_TK_E_NOT_FOUND);
  Walk plain;
  EXPECT_EQ(Run(static_cast<ProSolid>(sim::AddModel(L"bare.prt", {})), plain), PRO_TK_E_NOT_FOUND);
}

TEST_F(SimFeatures, DrawingsAndUnknownHandlesAreBadInputs) {
  sim::ModelDef drawing;
  drawing.type = PRO_MDL_DRAWING;
  Walk walk;
  EXPECT_EQ(Run(static_cast<ProSolid>(sim::AddModel(L"d.drw", drawing)), walk), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Run(reinterpret_cast<ProSolid>(&walk), walk), PRO_TK_BAD_INPUTS);
  EXPECT_TRUE(walk.visited.empty());
}

// A chain of assemblies level0.asm > level1.asm > ... > levelN.prt, each
// holding the next as component id 10 + its level.
class SimComponentPaths : public SimTest {
 protected:
  ProSolid Chain(int depth) {
    for (int level = depth; level >= 0; --level) {
      sim::ModelDef def;
      def.type = level == depth ? PRO_MDL_PART : PRO_MDL_ASSEMBLY;
      if (level < depth) def.components = {{10 + level, FileOf(level + 1, depth)}};
      top = static_cast<ProSolid>(sim::AddModel(FileOf(level, depth), def));
    }
    for (int level = 0; level < depth; ++level) ids[level] = 10 + level;
    return top;
  }
  static std::wstring FileOf(int level, int depth) {
    return L"level" + std::to_wstring(level) + (level == depth ? L".prt" : L".asm");
  }

  ProSolid top = nullptr;
  ProIdTable ids{};
};

TEST_F(SimComponentPaths, PathOf25IdsLeadsToTheDeepestModel) {
  Chain(PRO_MAX_ASSEM_LEVEL);
  ProAsmcomppath path{};
  ASSERT_EQ(ProAsmcomppathInit(top, ids, PRO_MAX_ASSEM_LEVEL, &path), PRO_TK_NO_ERROR);
  EXPECT_EQ(path.owner, top);
  EXPECT_EQ(path.table_num, PRO_MAX_ASSEM_LEVEL);
  ProMdl leaf = nullptr;
  ASSERT_EQ(ProAsmcomppathMdlGet(&path, &leaf), PRO_TK_NO_ERROR);
  EXPECT_EQ(Name(leaf), L"LEVEL25");
}

TEST_F(SimComponentPaths, ShortPathsEndInMinusOneAndAnEmptyOneIsTheTop) {
  Chain(3);
  ProAsmcomppath path{};
  ASSERT_EQ(ProAsmcomppathInit(top, ids, 2, &path), PRO_TK_NO_ERROR);
  EXPECT_EQ(path.comp_id_table[1], 11);
  EXPECT_EQ(path.comp_id_table[2], -1);
  EXPECT_EQ(path.comp_id_table[PRO_MAX_ASSEM_LEVEL - 1], -1);
  ProMdl mdl = nullptr;
  ASSERT_EQ(ProAsmcomppathMdlGet(&path, &mdl), PRO_TK_NO_ERROR);
  EXPECT_EQ(Name(mdl), L"LEVEL2");
  ASSERT_EQ(ProAsmcomppathInit(top, ids, 0, &path), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProAsmcomppathMdlGet(&path, &mdl), PRO_TK_NO_ERROR);
  EXPECT_EQ(mdl, top);
}

TEST_F(SimComponentPaths, IdsThatDoNotLeadDownFail) {
  Chain(3);
  ProAsmcomppath path{};
  ids[1] = 99;
  EXPECT_EQ(ProAsmcomppathInit(top, ids, 3, &path), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(ProAsmcomppathInit(top, ids, PRO_MAX_ASSEM_LEVEL + 1, &path), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProAsmcomppathInit(nullptr, ids, 1, &path), PRO_TK_BAD_INPUTS);
}

}  // namespace
