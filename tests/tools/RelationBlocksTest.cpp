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

TEST_F(MergeRelationBlocksTest, AShortBlockInsideALongerRelationCountsAsPresent) {
  EXPECT_EQ(Merge({L"D1*2"}, {L"d3 = d1*2 + 5"}), 0);
  EXPECT_EQ(Merge({L"D3 = D1", L"D4 = 0"}, {L"D3 = D1", L"", L"D4 = 0"}), 1)
      << "a block of two lines is present only with its line feed between them";
}

// An empty editor adds nothing: a model stays as it was.
TEST_F(MergeRelationBlocksTest, NoNewLinesMeanNoBlocks) {
  EXPECT_EQ(Merge({}, {L"A = 1"}), 0);
  EXPECT_EQ(out, Lines{});
}

TEST(RemoveRelationBlocks, ExistingLinesAreCleanedBeforeTheyAreComparedAndAlwaysAnswerOne) {
  Lines out{L"left over"};
  EXPECT_EQ(RemoveRelationBlocks({L"D1 = 2"}, {L"\tD1 = 2\r", L"", L"d2 = 3"}, out), 1);
  EXPECT_EQ(out, (Lines{L"D2 = 3", L""}));
  EXPECT_EQ(RemoveRelationBlocks({}, {}, out), 1);
  EXPECT_EQ(out, Lines{});
}

}  // namespace
