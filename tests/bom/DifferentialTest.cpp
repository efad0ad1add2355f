// The engine against the literal rules on many random trees: the same status
// and the same rows, quantities, levels, outline numbers and occurrences.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "CodePage.h"
#include "HostControl.h"
#include "LiteralBom.h"
#include "PluginHost.h"
#include "RandomTree.h"
#include "TkBOM.h"

namespace {

// Everything a row holds, as text, so that a difference reads plainly.
std::string Describe(const std::vector<BomMdl>& rows) {
  CTkModel model;
  std::ostringstream out;
  for (const BomMdl& row : rows) {
    out << platform::ToNarrow(model.GetMdlName(row.mdl)) << " q" << row.quantity << " l" << row.level
        << " ids";
    for (int id : row.BomCmpIds) out << "," << id;
    for (const TkModelAsmCmp& cmp : row.cmps) {
      out << " [" << cmp.path.table_num << ":";
      for (int i = 0; i < cmp.path.table_num; ++i) out << cmp.path.comp_id_table[i] << ".";
      out << (cmp.path.owner == nullptr) << "/" << cmp.feature.id << "]";
    }
    out << "\n";
  }
  return out.str();
}

BomCollectFilter RandomFilter(std::mt19937& random) {
  std::vector<BomCollectFilter> filters{
      {},
      {L"", {L"p"}, 0},
      {L"", {L" a1 ", L"S"}, 1},
      {L"KEY", {L"B", L"1"}, 0},
      {L"KEY", {L"C"}, 1},
      {L"", {L"A"}, 0},
  };
  return filters[std::uniform_int_distribution<size_t>(0, filters.size() - 1)(random)];
}

class BomDifferential : public testing::Test {
 protected:
  TestDir dir_;
  PluginHost host_{dir_};
  TkBOM engine_;
  LiteralBom literal_;
};

}  // namespace

TEST_F(BomDifferential, EngineGivesTheRowsOfTheLiteralRulesOnRandomTrees) {
  std::mt19937 random(20240307);
  const int kTrees = 400;
  for (int tree = 0; tree < kTrees; ++tree) {
    sim::StartHost({host_.WorkDir()});
    MakeRandomTree(random);
    BomCollectFilter filter = RandomFilter(random);
    SCOPED_TRACE("tree " + std::to_string(tree));

    std::vector<BomMdl> fast, slow;
    ASSERT_EQ(engine_.GetFirstLevelBomMdls(filter, fast), literal_.GetFirstLevelBomMdls(filter, slow));
    ASSERT_EQ(Describe(fast), Describe(slow)) << "single level";
    ASSERT_EQ(engine_.GetBomMdls(filter, fast), literal_.GetBomMdls(filter, slow));
    ASSERT_EQ(Describe(fast), Describe(slow)) << "summary";
    for (int sameAsmCmps : {0, 1}) {
      ASSERT_EQ(engine_.GetAllLeveBomMdls(filter, fast, sameAsmCmps),
                literal_.GetAllLeveBomMdls(filter, slow, sameAsmCmps));
      ASSERT_EQ(Describe(fast), Describe(slow)) << "multi-level, sameAsmCmps " << sameAsmCmps;
      for (const wchar_t* sortParam : {L"KEY", L"NOSUCH"}) {
        std::vector<BomMdl> fastSorted, slowSorted;
        ASSERT_EQ(engine_.SortLevelBomMdls(fast, sortParam, fastSorted),
                  literal_.SortLevelBomMdls(slow, sortParam, slowSorted));
        ASSERT_EQ(Describe(fastSorted), Describe(slowSorted))
            << "sorted by " << platform::ToNarrow(sortParam) << ", sameAsmCmps " << sameAsmCmps;
      }
    }
  }
}
