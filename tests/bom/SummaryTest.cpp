// The summary list: one row per model at any depth.
#include "BomTestSupport.h"

using Lines = std::vector<std::string>;
using BomSummary = BomTest;

TEST_F(BomSummary, SamePartAtThreeDepthsIsOneRowWithItsOccurrencesInWalkOrder) {
  Part(L"p.prt");
  Assembly(L"inner.asm", std::vector<std::wstring>{L"p.prt"});
  Assembly(L"outer.asm", {L"inner.asm", L"p.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"outer.asm", L"p.prt"}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  TOP x1", "-1  OUTER x1", "-1  INNER x1", "-1  P x3"}));
  std::vector<int> depths;
  for (const TkModelAsmCmp& cmp : rows[3].cmps) depths.push_back(cmp.path.table_num);
  EXPECT_EQ(depths, (std::vector<int>{3, 2, 1}));
}

TEST_F(BomSummary, QuantitiesAreCountsAcrossAllInstancesAndOneSuppressedOfThreeLeavesTwo) {
  Part(L"b.prt");
  Assembly(L"s.asm", {L"b.prt", L"b.prt", L"b.prt"});
  MakeCurrent(AssemblyOf(
      L"top.asm",
      std::vector<sim::ComponentDef>{{1, L"s.asm"}, {2, L"s.asm"}, {3, L"b.prt"}, Suppressed(4, L"b.prt")}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  TOP x1", "-1  S x2", "-1  B x7"}));
}

TEST_F(BomSummary, SuppressedSubAssemblyStillLetsItsContentsCount) {
  Part(L"b.prt");
  Assembly(L"s.asm", std::vector<std::wstring>{L"b.prt"});
  MakeCurrent(AssemblyOf(L"top.asm", std::vector<sim::ComponentDef>{Suppressed(1, L"s.asm")}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetBomMdls({L"", {L"B"}, 1}, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  B x1"}));
}

TEST_F(BomSummary, AssemblyWithoutComponentsIsTheTopRowAlone) {
  MakeCurrent(Assembly(L"empty.asm", std::vector<std::wstring>{}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  EMPTY x1"}));
}
