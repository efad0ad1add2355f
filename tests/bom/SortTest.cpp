// Sorting the multi-level list by a parameter.
#include "BomTestSupport.h"

using Lines = std::vector<std::string>;

class BomSort : public BomTest {
 protected:
  Lines Sorted(const std::wstring& param, int expected = 0, const BomCollectFilter& filter = {}) {
    std::vector<BomMdl> rows, sorted;
    EXPECT_EQ(bom_.GetAllLeveBomMdls(filter, rows, 0), 0);
    EXPECT_EQ(bom_.SortLevelBomMdls(rows, param, sorted), expected);
    return Show(sorted);
  }
};

TEST_F(BomSort, TextOrderIgnoresCaseAndKnowsNoNumbers) {
  EXPECT_EQ(bom_.CompareParamText(L"a", L"B"), -1);
  EXPECT_EQ(bom_.CompareParamText(L"abc", L"ABC"), 0);
  EXPECT_EQ(bom_.CompareParamText(L"10", L"9"), -1);
  EXPECT_EQ(bom_.CompareParamText(L"1.50", L"1.6"), -1);
  EXPECT_EQ(bom_.CompareParamText(L"AB", L"A"), 1);
}

TEST_F(BomSort, PartsBeforeAssembliesEachInKeyOrderAndRenumbered) {
  Part(L"x.prt", {{L"KEY", L"B"}});
  Part(L"y.prt", {{L"KEY", L"a"}});
  Part(L"z.prt", {{L"KEY", L"C"}});
  Assembly(L"s.asm", {L"z.prt", L"x.prt"}, {{L"KEY", L"A"}});
  MakeCurrent(Assembly(L"top.asm", {L"s.asm", L"x.prt", L"y.prt", L"z.prt"}));
  EXPECT_EQ(Sorted(L"KEY"), (Lines{"0 0 TOP x1", "1 1 Y x1", "1 2 X x1", "1 3 Z x1", "1 4 S x1", "2 4.1 X x1",
                                   "2 4.2 Z x1"}));
}

TEST_F(BomSort, EqualKeysComeReversedAtDepthOneAndInWalkOrderBelow) {
  Part(L"p1.prt");
  Part(L"p2.prt");
  Part(L"p3.prt");
  Assembly(L"s.asm", {L"p1.prt", L"p2.prt", L"p3.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"p1.prt", L"p2.prt", L"p3.prt", L"s.asm"}));
  EXPECT_EQ(Sorted(L"NOSUCH"), (Lines{"0 0 TOP x1", "1 1 P3 x1", "1 2 P2 x1", "1 3 P1 x1", "1 4 S x1",
                                      "2 4.1 P1 x1", "2 4.2 P2 x1", "2 4.3 P3 x1"}));
}

TEST_F(BomSort, ChildrenOfAFilteredOutSubAssemblyHaveNoParentAndGo) {
  Part(L"p.prt");
  Part(L"q.prt");
  Assembly(L"s.asm", std::vector<std::wstring>{L"p.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"q.prt", L"s.asm"}));
  EXPECT_EQ(Sorted(L"KEY", 0, {L"", {L"S"}, 0}), (Lines{"0 0 TOP x1", "1 1 Q x1"}));
}

TEST_F(BomSort, TopModelAPartIsRefused) {
  Part(L"shaft.prt");
  MakeCurrent(Drawing(L"shaft.drw", {L"shaft.prt"}));
  EXPECT_TRUE(Sorted(L"KEY", PRO_TK_E_NOT_FOUND).empty());
}
