// The main job on the sample session: the BOM list opened by its command,
// its controls set from the options and "输出" pressed, with no display.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

#include "JobRun.h"
#include "ModelFile.h"
#include "SavedTable.h"

namespace fs = std::filesystem;

namespace {

class BomJobTest : public testing::Test {
 protected:
  JobRun Run(const std::string& job, const std::string& arguments) {
    return RunJob(dir_, job, arguments,
                  "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u XDG_RUNTIME_DIR");
  }
  JobRun Bom(const std::string& arguments) { return Run("bom", arguments); }
  // The number of rows of a list as the rows job collects it.
  size_t RowCount(const std::string& level) { return Run("rows", "--level " + level).lines.size(); }
  fs::path Work() const { return dir_.path() / "work"; }
  fs::path Out() const { return dir_.path() / "out"; }
  std::string OutOption() const { return "--out '" + Out().string() + "/'"; }
  std::vector<std::string> TextLines(const fs::path& file) const {
    return SplitLines(dir_.Read(fs::relative(file, dir_.path()).string()));
  }

  TestDir dir_;
};

TEST_F(BomJobTest, WithoutOptionsTheMultiLevelListGoesToExcelAndTextUnderOut) {
  JobRun run = Bom("");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(run.err, "") << "the offscreen platform's notices are no news to a user";
  fs::path workbook = Work() / "out" / "Excel" / "REDUCER_零件明细.xls";
  fs::path text = Work() / "out" / "REDUCER_零件明细.txt";
  EXPECT_TRUE(fs::exists(workbook));
  std::vector<std::string> lines = TextLines(text);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines[0].rfind("序号\t层级\t", 0), 0u) << lines[0];
  EXPECT_EQ(lines.size(), RowCount("multi") + 1);
  std::string out = Work().string() + "/out/";
  EXPECT_EQ(run.lines, (std::vector<std::string>{
                           "prompt 提示: 是否打开：" + out + "Excel\\REDUCER_零件明细.xls ？ -> no",
                           "wrote " + workbook.string(),
                           "prompt 提示: 是否打开：" + out + "\\REDUCER_零件明细.txt ？ -> no",
                           "wrote " + text.string(),
                       }));
}

TEST_F(BomJobTest, OnlyTheGivenOptionsSetTheirControls) {
  // The delivered settings check no output box: without --excel only the text
  // is written.
  JobRun run = Bom("--level single --text --name 清单 " + OutOption());
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_FALSE(fs::exists(Out() / "Excel"));
  EXPECT_EQ(TextLines(Out() / "清单.txt").size(), RowCount("single") + 1);
  EXPECT_FALSE(fs::exists(Work() / "out"));
}

TEST_F(BomJobTest, ExistingWorkbookIsReplacedOnlyWithOverwrite) {
  fs::create_directories(Out() / "Excel");
  dir_.Write("out/Excel/清单.xls", "mine");
  JobRun declined = Bom("--excel --name 清单 " + OutOption());
  ASSERT_EQ(declined.exitCode, 0) << declined.err;
  EXPECT_EQ(dir_.Read("out/Excel/清单.xls"), "mine");
  ASSERT_EQ(declined.lines.size(), 1u);
  EXPECT_NE(declined.lines[0].find("已经存在，是否覆盖？ -> no"), std::string::npos) << declined.lines[0];

  JobRun accepted = Bom("--excel --name 清单 --overwrite " + OutOption());
  ASSERT_EQ(accepted.exitCode, 0) << accepted.err;
  EXPECT_NE(dir_.Read("out/Excel/清单.xls"), "mine");
  ASSERT_EQ(accepted.lines.size(), 3u);
  EXPECT_NE(accepted.lines[0].find("已经存在，是否覆盖？ -> yes"), std::string::npos) << accepted.lines[0];
  EXPECT_EQ(accepted.lines[2], "wrote " + (Out() / "Excel" / "清单.xls").string());
}

TEST_F(BomJobTest, SortAndFilterEntriesAreChosenAsTheUserCould) {
  ASSERT_EQ(Bom("--level multi --text --name tree " + OutOption()).exitCode, 0);
  JobRun sorted = Bom("--level multi --sort 1 --text --name sorted " + OutOption());
  ASSERT_EQ(sorted.exitCode, 0) << sorted.err;
  // The first sort entry orders the rows by 图号 within their levels.
  std::vector<std::string> tree = TextLines(Out() / "tree.txt");
  std::vector<std::string> byNumber = TextLines(Out() / "sorted.txt");
  EXPECT_EQ(byNumber.size(), tree.size());
  EXPECT_NE(byNumber, tree);

  JobRun disabled = Bom("--level single --sort 1 --text");
  EXPECT_EQ(disabled.exitCode, 1);
  EXPECT_NE(disabled.err.find("SortCombo is disabled"), std::string::npos) << disabled.err;
  JobRun missing = Bom("--filter 99 --text");
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_NE(missing.err.find("FilterCombo has no entry 99"), std::string::npos) << missing.err;
  EXPECT_TRUE(missing.lines.empty());
}

TEST_F(BomJobTest, DrawingGetsTheTableAtThePickedPointAndIsSavedIntoTheWorkDirectory) {
  JobRun run = Bom("--current reducer.drw --level single --drawing --pick 300,120");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  fs::path saved = Work() / "reducer.drw.1";
  EXPECT_EQ(run.lines, std::vector<std::string>{"wrote " + saved.string()});
  std::optional<sim::ModelDef> drawing = sim::ReadModelFile(saved);
  ASSERT_TRUE(drawing.has_value());
  ASSERT_EQ(drawing->tables.size(), 1u);
  const sim::TableDef& table = drawing->tables[0];
  EXPECT_EQ(table.rows.size(), RowCount("single") + 1);
  EXPECT_DOUBLE_EQ(table.origin[0], 300);
  EXPECT_DOUBLE_EQ(table.origin[1], 120 + TableHeight(table));
}

TEST_F(BomJobTest, BadOptionsAndAPartAsCurrentModelAreRefused) {
  EXPECT_EQ(Bom("--level deep").exitCode, 2);
  EXPECT_EQ(Bom("--sort x").exitCode, 2);
  EXPECT_EQ(Bom("--pick").exitCode, 2);
  EXPECT_EQ(Bom("--drawing").exitCode, 2);
  for (const char* point : {"3", "nan,1", "1,inf", "1e999,2", "' 1,2'"}) {
    JobRun run = Bom(std::string("--drawing --pick ") + point);
    EXPECT_EQ(run.exitCode, 2) << point;
    EXPECT_NE(run.err.find("--pick takes a point X,Y"), std::string::npos) << run.err;
  }
  for (const char* arguments : {"--bogus", "--text --bogus x"}) {
    JobRun bogus = Bom(arguments);
    EXPECT_EQ(bogus.exitCode, 2);
    EXPECT_NE(bogus.err.find("unknown option --bogus"), std::string::npos) << bogus.err;
  }
  JobRun assembly = Bom("--drawing --pick 1,2");
  EXPECT_EQ(assembly.exitCode, 1);
  EXPECT_NE(assembly.err.find("DrawingCheck is disabled"), std::string::npos) << assembly.err;
  JobRun part = Bom("--current housing.prt");
  EXPECT_EQ(part.exitCode, 1);
  EXPECT_NE(part.err.find("CmdBOMShowId is not available"), std::string::npos) << part.err;
}

TEST_F(BomJobTest, NoCheckedOutputBoxIsSaidAndNothingIsWritten) {
  // The delivered settings check no output box.
  JobRun run = Bom("--level single " + OutOption());
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_NE(run.err.find("no output box is checked"), std::string::npos) << run.err;
  EXPECT_TRUE(fs::is_empty(Out()));
}

// Nothing can be made where a file stands in the way of the Excel directory.
TEST_F(BomJobTest, AnOutputThatBreaksOffEndsTheJobWithTheFileAndTheEnginesError) {
  dir_.Write("out/Excel", "a file");
  JobRun run = Bom("--excel --text --name 清单 " + OutOption());
  EXPECT_EQ(run.exitCode, 1);
  std::string workbook = (Out() / "Excel" / "清单.xls").string();
  EXPECT_NE(run.err.find("bom-workbench: the output broke off: "), std::string::npos) << run.err;
  EXPECT_NE(run.err.find("cannot write " + workbook), std::string::npos) << run.err;
  // The text output comes after the Excel output and is not reached.
  EXPECT_FALSE(fs::exists(Out() / "清单.txt"));
}

TEST_F(BomJobTest, ATemplateThatCannotBeReadEndsTheJobWithItsPathAndReason) {
  fs::path app = dir_.path() / "app";
  fs::copy(BOM_STAGE_DIR, app, fs::copy_options::recursive);
  fs::path bomTemplate = app / "template" / "BOM.xls";
  const std::vector<std::pair<std::string, std::function<void()>>> cases = {
      {"no such file", [] {}},
      {"not an Excel workbook", [&] { dir_.Write("app/template/BOM.xls", ""); }},
      {"not an Excel workbook", [&] { dir_.Write("app/template/BOM.xls", "name,qty\n"); }},
      {"Is a directory", [&] { fs::create_directory(bomTemplate); }},
  };
  for (const auto& [reason, makeTemplate] : cases) {
    fs::remove_all(bomTemplate);
    makeTemplate();
    JobRun run = Bom("--excel --name 清单 " + OutOption());
    EXPECT_EQ(run.exitCode, 1) << reason;
    EXPECT_NE(run.err.find("the output broke off: 新建Excel失败"), std::string::npos) << run.err;
    // The plug-in names the template in lower case; a lookup ignoring case
    // finds the delivered file.
    EXPECT_NE(run.err.find((app / "template").string() + "/"), std::string::npos) << run.err;
    EXPECT_NE(run.err.find(reason), std::string::npos) << run.err;
  }
}

}  // namespace
