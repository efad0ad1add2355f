// The rows job on the sample session: the bills of materials a user reads in
// a terminal.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "JobRun.h"

namespace {

class RowsJobTest : public testing::Test {
 protected:
  JobRun Rows(const std::string& arguments) { return RunJob(dir_, "rows", arguments); }

  TestDir dir_;
};

}  // namespace

TEST_F(RowsJobTest, SingleLevelListsTheDirectComponentsOnceEach) {
  JobRun run = Rows("--level single");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  EXPECT_EQ(
      run.lines,
      (std::vector<std::string>{
          "-1\t\tREDUCER\tassembly\t1", "-1\t\tHOUSING\tpart\t1", "-1\t\tINPUT_SHAFT_ASM\tassembly\t1",
          "-1\t\tMID_SHAFT_ASM\tassembly\t1", "-1\t\tOUTPUT_SHAFT_ASM\tassembly\t1", "-1\t\tCOVER\tpart\t1",
          "-1\t\tGB5782_M8X30\tpart\t8", "-1\t\tGB97_1_8\tpart\t8", "-1\t\tGB6170_M8\tpart\t8"}));
}

TEST_F(RowsJobTest, MultiLevelShowsTheTreeWithOutlineNumbers) {
  JobRun run = Rows("--level multi");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  ASSERT_EQ(run.lines.size(), 28u) << run.all();
  EXPECT_EQ(run.lines[0], "0\t0\tREDUCER\tassembly\t1");
  EXPECT_EQ(run.lines[13], "2\t3.6\tEND_CAP_ASM\tassembly\t2");
  EXPECT_EQ(run.lines[15], "3\t3.6.2\tGB97_1_8\tpart\t8") << "four in each of the two end caps";
  JobRun same = Rows("--level multi --same-asm-cmps 1");
  EXPECT_EQ(same.lines[15], "3\t3.6.2\tGB97_1_8\tpart\t4");
}

TEST_F(RowsJobTest, MultiLevelSortedByDrawingNumberPutsPartsFirstUnderEachParent) {
  JobRun run = Rows("--level multi --sort 图号");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  ASSERT_GE(run.lines.size(), 7u);
  EXPECT_EQ(run.lines[1], "1\t1\tGB5782_M8X30\tpart\t8");
  EXPECT_EQ(run.lines[4], "1\t4\tHOUSING\tpart\t1");
  EXPECT_EQ(run.lines[5], "1\t5\tCOVER\tpart\t1");
  EXPECT_EQ(run.lines[6], "1\t6\tINPUT_SHAFT_ASM\tassembly\t1");
}

TEST_F(RowsJobTest, SummaryCountsEveryOccurrenceAndAFilterTakesStandardPartsOut) {
  JobRun run = Rows("--level summary --filter-key 图号 --filter-values GB");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  for (const std::string& line : run.lines) EXPECT_EQ(line.find("\tGB"), std::string::npos) << line;
  EXPECT_NE(std::find(run.lines.begin(), run.lines.end(), "-1\t\tOIL_RING\tpart\t4"), run.lines.end());
  JobRun all = Rows("--level summary");
  EXPECT_NE(std::find(all.lines.begin(), all.lines.end(), "-1\t\tGB5782_M8X30\tpart\t16"), all.lines.end());
}

TEST_F(RowsJobTest, DrawingOfAPartListsThePartAndItsSortIsRefused) {
  JobRun run = Rows("--level single --current output_shaft.drw");
  EXPECT_EQ(run.exitCode, 0) << run.all();
  EXPECT_EQ(run.lines, (std::vector<std::string>{"-1\t\tOUTPUT_SHAFT\tpart\t1"}));
  JobRun sorted = Rows("--level multi --sort 图号 --current output_shaft.drw");
  EXPECT_EQ(sorted.exitCode, 1);
  EXPECT_NE(sorted.all().find("PRO_TK_E_NOT_FOUND"), std::string::npos);
}

TEST_F(RowsJobTest, PartAsCurrentModelHasNoListAndBadOptionsAreRefused) {
  JobRun part = Rows("--level summary --current housing.prt");
  EXPECT_EQ(part.exitCode, 1);
  EXPECT_NE(part.all().find("PRO_TK_E_NOT_FOUND"), std::string::npos);
  EXPECT_EQ(Rows("").exitCode, 2) << "--level is required";
  EXPECT_EQ(Rows("--level tree").exitCode, 2);
  EXPECT_EQ(Rows("--level multi --same-asm-cmps 2").exitCode, 2);
}

// A session of the user's own, with parts whose files are gone or broken.
TEST_F(RowsJobTest, ModelsThatCannotBeLoadedAreReportedAndCounted) {
  dir_.Write("session/session.json", R"({"current": "top.asm"})");
  dir_.Write("session/top.asm.1", R"({"type": "assembly", "components": [{"id": 1, "model": "gone.prt"},
      {"id": 2, "model": "bad.prt"}, {"id": 3, "model": "ok.prt"}]})");
  dir_.Write("session/bad.prt.1", R"({"type": "part", "parameters": 5})");
  dir_.Write("session/ok.prt.1", R"({"type": "part"})");
  JobRun run = Rows("--level single --session '" + (dir_.path() / "session").string() + "'");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  EXPECT_EQ(run.lines, (std::vector<std::string>{"-1\t\tTOP\tassembly\t1", "-1\t\tOK\tpart\t1"}));
  std::vector<std::string> err = SplitLines(run.err);
  ASSERT_EQ(err.size(), 3u) << run.err;
  EXPECT_EQ(err[0].rfind("bom-workbench: could not load gone.prt: gone.prt: no model file in ", 0), 0u)
      << err[0];
  EXPECT_EQ(err[1], "bom-workbench: could not load bad.prt: " + (dir_.path() / "session/bad.prt.1").string() +
                        ": key /parameters: must be a list, but is number");
  EXPECT_EQ(err[2], "bom-workbench: 2 models could not be loaded");

  EXPECT_EQ(Rows("--level single").err, "") << "nothing is missing in the sample";
}

TEST_F(RowsJobTest, ASessionThatCannotLoadIsRefusedWithTheFileAndTheKey) {
  dir_.Write("session/session.json", "{\"current\": \"top.asm\"}");
  dir_.Write("session/top.asm.1", R"({"type": "assembly", "components": [{"id": "six", "model": "a.prt"}]})");
  JobRun run = Rows("--level single --session '" + (dir_.path() / "session").string() + "'");
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "bom-workbench: cannot load the session " + (dir_.path() / "session").string() + ": " +
                         (dir_.path() / "session/session.json").string() +
                         ": key /current: " + (dir_.path() / "session/top.asm.1").string() +
                         ": key /components/0/id: type must be number, but is string\n");
}
