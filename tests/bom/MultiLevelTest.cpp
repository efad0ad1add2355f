// The multi-level list: rows per parent, quantities by sameAsmCmps, outline
// numbers.
#include "BomTestSupport.h"

using Lines = std::vector<std::string>;

class BomMultiLevel : public BomTest {
 protected:
  Lines Rows(int sameAsmCmps, const BomCollectFilter& filter = {}) {
    std::vector<BomMdl> rows;
    EXPECT_EQ(bom_.GetAllLeveBomMdls(filter, rows, sameAsmCmps), 0);
    return Show(rows);
  }
};

TEST_F(BomMultiLevel, PartUnderTheTopAndUnderEachOfTwoSubAssembliesHasARowUnderEach) {
  Part(L"p.prt");
  Assembly(L"s1.asm", std::vector<std::wstring>{L"p.prt"});
  Assembly(L"s2.asm", std::vector<std::wstring>{L"p.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"p.prt", L"s1.asm", L"s2.asm"}));
  EXPECT_EQ(Rows(0), (Lines{"0 0 TOP x1", "1 1 P x1", "1 2 S1 x1", "2 2.1 P x1", "1 3 S2 x1", "2 3.1 P x1"}));
}

TEST_F(BomMultiLevel, SubAssemblyTwiceSumsItsContentsOrWithSameAsmCmpsShowsThemOnce) {
  Part(L"b.prt");
  Assembly(L"s.asm", {L"b.prt", L"b.prt", L"b.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"s.asm", L"s.asm"}));
  EXPECT_EQ(Rows(0), (Lines{"0 0 TOP x1", "1 1 S x2", "2 1.1 B x6"}));
  EXPECT_EQ(Rows(1), (Lines{"0 0 TOP x1", "1 1 S x2", "2 1.1 B x3"}));
}

TEST_F(BomMultiLevel, FilteredOutSubAssemblyLeavesItsChildrenWithTheirNumbers) {
  Part(L"p.prt");
  Part(L"q.prt");
  Assembly(L"s.asm", {L"p.prt", L"q.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"q.prt", L"s.asm"}));
  EXPECT_EQ(Rows(0, {L"", {L"S"}, 0}), (Lines{"0 0 TOP x1", "1 1 Q x1", "2 2.1 P x1", "2 2.2 Q x1"}));
}

TEST_F(BomMultiLevel, SuppressedSubAssemblyHasNoRowButItsCountedChildrenStay) {
  Part(L"p.prt");
  Assembly(L"s.asm", std::vector<std::wstring>{L"p.prt"});
  MakeCurrent(AssemblyOf(L"top.asm", std::vector<sim::ComponentDef>{Suppressed(1, L"s.asm")}));
  // No parent row gives no parent number.
  EXPECT_EQ(Rows(0), (Lines{"0 0 TOP x1", "2 -1.1 P x1"}));
}
