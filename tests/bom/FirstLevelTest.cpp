// The single-level list, and what all collections share: the top model, the
// occurrences that count and the row filter.
#include "BomTestSupport.h"

using Lines = std::vector<std::string>;
using BomFirstLevel = BomTest;

TEST_F(BomFirstLevel, SameNameInAnyCaseIsOneRowAndAPartAndAnAssemblyOfOneNameAreTwo) {
  Part(L"bolt.prt");
  sim::ModelDef lower;
  lower.name = L"bolt";
  sim::AddModel(L"bolt_lower.prt", lower);
  Assembly(L"bolt.asm", std::vector<std::wstring>{L"bolt.prt"});
  MakeCurrent(Assembly(L"top.asm", {L"bolt.prt", L"bolt_lower.prt", L"bolt.asm", L"bolt.prt"}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetFirstLevelBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  TOP x1", "-1  BOLT x3", "-1  BOLT x1"}));
  EXPECT_EQ(rows[1].cmps.size(), 3u);
  EXPECT_EQ(rows[1].BomCmpIds[0], 1);
  EXPECT_EQ(rows[2].BomCmpIds[0], 2) << "the running number of creation";
}

TEST_F(BomFirstLevel, SuppressedOccurrencesAndConceptModelsDoNotCount) {
  Part(L"bolt.prt");
  Part(L"nut.prt");
  Part(L"skeleton.prt", {}, PROMDLSTYPE_PART_CONCEPT_MODEL);
  MakeCurrent(AssemblyOf(
      L"top.asm",
      std::vector<sim::ComponentDef>{
          {1, L"skeleton.prt"}, {2, L"bolt.prt"}, Suppressed(3, L"bolt.prt"), Suppressed(4, L"nut.prt")}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetFirstLevelBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  TOP x1", "-1  BOLT x1"}));
}

TEST_F(BomFirstLevel, SubAssemblyIsARowOfItsOwnWithoutItsContents) {
  Part(L"bolt.prt");
  Assembly(L"sub.asm", std::vector<std::wstring>{L"bolt.prt", L"bolt.prt"});
  MakeCurrent(Assembly(L"top.asm", std::vector<std::wstring>{L"sub.asm"}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetFirstLevelBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  TOP x1", "-1  SUB x1"}));
}

TEST_F(BomFirstLevel, TopModelIsTheAssemblyOrTheFirstSolidOfADrawingEvenAPart) {
  Part(L"bolt.prt");
  Assembly(L"first.asm", std::vector<std::wstring>{L"bolt.prt"});
  Assembly(L"second.asm", std::vector<std::wstring>{L"bolt.prt"});
  MakeCurrent(Drawing(L"plan.drw", {L"first.asm", L"second.asm"}));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  FIRST x1", "-1  BOLT x1"}));
  // The top row stands for the model itself: a path without ids.
  EXPECT_EQ(rows[0].cmps[0].path.table_num, 0);
  EXPECT_EQ(rows[0].cmps[0].path.comp_id_table[0], -1);
  // A drawing of a part lists the part alone.
  Part(L"shaft.prt");
  MakeCurrent(Drawing(L"shaft.drw", {L"shaft.prt"}));
  ASSERT_EQ(bom_.GetFirstLevelBomMdls(none_, rows), 0);
  EXPECT_EQ(Show(rows), (Lines{"-1  SHAFT x1"}));
}

TEST_F(BomFirstLevel, PartOrNoCurrentModelGivesNoRows) {
  MakeCurrent(Part(L"bolt.prt"));
  std::vector<BomMdl> rows(2);
  EXPECT_EQ(bom_.GetFirstLevelBomMdls(none_, rows), PRO_TK_E_NOT_FOUND);
  EXPECT_TRUE(rows.empty());
  MakeCurrent(nullptr);
  EXPECT_EQ(bom_.GetAllLeveBomMdls(none_, rows, 0), PRO_TK_BAD_CONTEXT) << "the host's status, not -4";
  EXPECT_TRUE(rows.empty());
}

TEST_F(BomFirstLevel, TrailRecordsTheRootStepsAndEachCountedComponent) {
  Part(L"bolt.prt");
  MakeCurrent(Assembly(L"top.asm", std::vector<std::wstring>{L"bolt.prt"}));
  std::vector<BomMdl> rows;
  bom_.GetFirstLevelBomMdls(none_, rows);
  EXPECT_EQ(host_.TrailLines(),
            (Lines{"!#QK~TkBOM~GetFirstLevelBomMdls~ProMdlCurrentGet Status = PRO_TK_NO_ERROR",
                   "!#QK~TkBOM~GetFirstLevelBomMdls~GetCurMdlType Status = PRO_TK_NO_ERROR",
                   "!#QK~TkBOM~GetFirstLevelBomMdls~GetAllComponent2 Status = PRO_TK_NO_ERROR",
                   "!#QK~TkBOM~GetFirstLevelBomMdls~The 0 Cmp Status = PRO_TK_NO_ERROR",
                   "!#QK~TkBOM~GetFirstLevelBomMdls~GetMdlNameAndType Status = PRO_TK_NO_ERROR"}));
}

class BomFilter : public BomTest {
 protected:
  void SetUp() override {
    Part(L"abc.prt", {{L"CODE", L"GB-1"}});
    Part(L"xab.prt", {{L"CODE", L"gb-2"}});
    MakeCurrent(Assembly(L"atop.asm", std::vector<std::wstring>{L"abc.prt", L"xab.prt"}));
  }
  Lines Rows(const BomCollectFilter& filter) {
    std::vector<BomMdl> rows;
    EXPECT_EQ(bom_.GetFirstLevelBomMdls(filter, rows), 0);
    return Show(rows);
  }
};

TEST_F(BomFilter, TextMatchesAtTheStartOfTheNameAndTheTopRowGoesToo) {
  EXPECT_EQ(Rows({L"", {L" ab "}, 0}), (Lines{"-1  ATOP x1", "-1  XAB x1"}));
  EXPECT_EQ(Rows({L"", {L"a"}, 0}), (Lines{"-1  XAB x1"}));
  EXPECT_EQ(Rows({L"", {L"x", L"zz"}, 1}), (Lines{"-1  XAB x1"}));
}

TEST_F(BomFilter, ParameterValueIsNotUpperCasedSoSmallLettersNeverMatch) {
  EXPECT_EQ(Rows({L"CODE", {L"gb"}, 1}), (Lines{"-1  ABC x1"}));
  EXPECT_EQ(Rows({L"CODE", {L"gb"}, 0}), (Lines{"-1  ATOP x1", "-1  XAB x1"}));
}

TEST_F(BomFilter, EmptyTextMatchesEveryRowAndNoTextsKeepAll) {
  EXPECT_TRUE(Rows({L"", {L""}, 0}).empty());
  EXPECT_EQ(Rows({L"", {}, 1}).size(), 3u);
}
