#include "RelationBlocks.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::wstring>;

Lines Trimmed(const std::wstring& text) {
  Lines lines{L"left over"};
  TrimRelationLines(text, lines);
  return lines;
}

TEST(TrimRelationLines, CleansEachEndOncePerCharacterAndKeepsEmptyLines) {
  EXPECT_EQ(Trimmed(L""), Lines{});
  EXPECT_EQ(Trimmed(L"  D1 = 2\r\n\r\n\tD2=3\t\r\nD3=4"), (Lines{L"D1 = 2", L"", L"D2=3", L"D3=4"}));
  // The blank pass comes first: a blank behind a tab, or in front of a
  // carriage return, stays.
  EXPECT_EQ(Trimmed(L"D1 = 2 \r"), Lines{L"D1 = 2 "});
  EXPECT_EQ(Trimmed(L"\t D1=2\n\r\tD2=3"), (Lines{L" D1=2", L"D2=3"}));
  EXPECT_EQ(Trimmed(L"A=1\n\n"), (Lines{L"A=1", L""})) << "a line feed at the very end opens no line";
}

TEST(CleanRelationLine, EachPassTakesRunsOfItsCharacterFromBothEnds) {
  EXPECT_EQ(CleanRelationLine(L"  \r\r\t\tX=1\t\t\r\r  "), L"X=1");
  EXPECT_EQ(CleanRelationLine(L"\r X=1"), L" X=1") << "the blank pass is over when the return goes";
}

class MergeRelationBlocksTest : public testing::Test {
 protected:
  int Merge(const Lines& newLines, const Lines& existing) {
    out = {L"left over"};
    return MergeRelationBlocks(newLines, existing, out);
  }
  Lines out;
};

TEST_F(MergeRelationBlocksTest, NewBlocksFollowTheExistingTextInUpperCaseEachAfterABlankLine) {
  EXPECT_EQ(Merge({L"d3 = d1*2", L"", L"d4 = d2"}, {L"length = 10", L"  Width = 5\t"}), 1);
  // The first block keeps its own empty line and gets one more in front of
  // the next.
  EXPECT_EQ(out, (Lines{L"LENGTH = 10", L"WIDTH = 5", L"", L"D3 = D1*2", L"", L"", L"D4 = D2"}));
}

TEST_F(MergeRelationBlocksTest, IntoAnEmptySetTheFirstLineIsEmpty) {
  EXPECT_EQ(Merge({L"m = 2"}, {}), 1);
  EXPECT_EQ(out, (Lines{L"", L"M = 2"}));
}

TEST_F(MergeRelationBlocksTest, BlocksAlreadyPresentAreDroppedWithoutRegardToCase) {
  Lines existing{L"D3 = D1*2", L"", L"D4 = D2"};
  EXPECT_EQ(Merge({L"d4 = d2", L"", L"d3 = d1*2"}, existing), 0);
  EXPECT_EQ(out, Lines{});
  EXPECT_EQ(Merge({L"d4 = d2", L"", L"d5 = 1"}, existing), 1);
  EXPECT_EQ(out, (Lines{L"D3 = D1*2", L"", L"D4 = D2", L"", L"D5 = 1"}));
}

TEST_F(MergeRelationBlocksTest, AShortBlockInsideALongerRelationCountsAsPresent) {
  EXPECT_EQ(Merge({L"D1*2"}, {L"d3 = d1*2 + 5"}), 0);
  EXPECT_EQ(Merge({L"D3 = D1", L"D4 = 0"}, {L"D3 = D1", L"", L"D4 = 0"}), 1)
      << "a block of two lines is present only with its line feed between them";
}

TEST_F(MergeRelationBlocksTest, NoNewLinesMeanNoBlocks) {
  EXPECT_EQ(Merge({}, {L"A = 1"}), 0);
  EXPECT_EQ(out, Lines{});
}

class RemoveRelationBlocksTest : public testing::Test {
 protected:
  Lines Remove(const Lines& deleteLines, const Lines& existing) {
    Lines out{L"left over"};
    EXPECT_EQ(RemoveRelationBlocks(deleteLines, existing, out), 1);
    return out;
  }
};

TEST_F(RemoveRelationBlocksTest, AWholeBlockGoesWhateverItsBlanksAndCase) {
  Lines existing{L"A = 1", L"", L"d3 = d1 * 2", L"d4 = d2", L"", L"B = 2"};
  EXPECT_EQ(Remove({L"D3=D1*2", L"  D4  =  D2 "}, existing), (Lines{L"A = 1", L"", L"", L"B = 2", L""}));
}

TEST_F(RemoveRelationBlocksTest, APartOfABlockOrABlockOfMoreLinesRemovesNothing) {
  Lines existing{L"D3 = D1*2", L"D4 = D2"};
  EXPECT_EQ(Remove({L"D3 = D1*2"}, existing), (Lines{L"D3 = D1*2", L"D4 = D2", L""}));
  EXPECT_EQ(Remove({L"D3 = D1*2", L"D4 = D2", L"D5 = 0"}, existing), (Lines{L"D3 = D1*2", L"D4 = D2", L""}));
}

TEST_F(RemoveRelationBlocksTest, EachDeleteWidensTheGapsAndUpperCasesWhatStays) {
  Lines once = Remove({L"x = 9"}, {L"a = 1", L"", L"b = 2"});
  EXPECT_EQ(once, (Lines{L"A = 1", L"", L"", L"B = 2", L""}));
  EXPECT_EQ(Remove({L"x = 9"}, once), (Lines{L"A = 1", L"", L"", L"", L"", L"B = 2", L"", L""}));
}

TEST_F(RemoveRelationBlocksTest, ExistingLinesAreCleanedBeforeTheyAreCompared) {
  EXPECT_EQ(Remove({L"D1 = 2"}, {L"\tD1 = 2\r", L"", L"D2 = 3"}), (Lines{L"D2 = 3", L""}));
  EXPECT_EQ(Remove({}, {}), Lines{});
}

}  // namespace
