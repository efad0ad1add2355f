// The job "play" as a user runs it: every sample script plays through on
// the sample session, and a script that breaks off says where.
#include <gtest/gtest.h>

#include <filesystem>

#include "JobRun.h"

namespace fs = std::filesystem;

namespace {

// On a copy of the sample session, as scripts/play-sample.sh plays: a script
// may save and delete models, and back them up into work/backup.
JobRun Play(const TestDir& dir, const fs::path& script) {
  fs::create_directories(dir.path() / "work" / "backup");
  if (!fs::exists(dir.path() / "session"))
    fs::copy(fs::path(BOM_SAMPLES_DIR) / "reducer", dir.path() / "session", fs::copy_options::recursive);
  return RunJob(dir, "play '" + script.string() + "'",
                "--session '" + (dir.path() / "session").string() + "'",
                "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM");
}

TEST(PlayJobTest, EverySampleScriptPlaysThrough) {
  fs::path scripts = fs::path(BOM_SOURCE_DIR) / "samples" / "scripts";
  int played = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(scripts)) {
    if (entry.path().extension() != ".play") continue;
    TestDir dir;
    JobRun run = Play(dir, entry.path());
    EXPECT_EQ(run.exitCode, 0) << entry.path() << "\n" << run.all();
    ++played;
  }
  EXPECT_GE(played, 4);
}

TEST(PlayJobTest, LevelsScriptWritesAWorkbookAndATextFilePerLevel) {
  TestDir dir;
  JobRun run = Play(dir, fs::path(BOM_SOURCE_DIR) / "samples" / "scripts" / "bom-levels.play");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  for (const char* level : {"单层清单", "多层清单", "汇总清单"}) {
    std::string name = std::string("REDUCER_") + level;
    EXPECT_TRUE(fs::exists(dir.path() / "work" / "Excel" / (name + ".xls"))) << name;
    EXPECT_TRUE(fs::exists(dir.path() / "work" / (name + ".txt"))) << name;
  }
}

TEST(PlayJobTest, HousekeepingBacksUpTheReducerAndTrashesTheHousingsOldVersions) {
  TestDir dir;
  JobRun run = Play(dir, fs::path(BOM_SOURCE_DIR) / "samples" / "scripts" / "housekeeping.play");
  ASSERT_EQ(run.exitCode, 0) << run.all();
  bool backedUp = false;
  for (const fs::directory_entry& entry : fs::directory_iterator(dir.path() / "work" / "backup"))
    backedUp = backedUp || entry.path().filename().string().starts_with("reducer.asm");
  EXPECT_TRUE(backedUp);
  EXPECT_FALSE(fs::exists(dir.path() / "session" / "housing.prt.1"));
  EXPECT_TRUE(fs::exists(dir.path() / "session" / "housing.prt.3"));
}

TEST(PlayJobTest, BrokenScriptNamesItsLineAndExitsOne) {
  TestDir dir;
  dir.Write("broken.play", "# opens the list\nrun CmdBOMShowId\n\nset 文件名称 \"unclosed\n");
  JobRun unreadable = Play(dir, dir.path() / "broken.play");
  EXPECT_EQ(unreadable.exitCode, 1);
  EXPECT_NE(unreadable.err.find("broken.play:4: unclosed quote"), std::string::npos) << unreadable.err;

  dir.Write("unanswered.play", "run CmdBOMShowId\ncheck Text on\nclick 输出\n");
  JobRun unanswered = Play(dir, dir.path() / "unanswered.play");
  EXPECT_EQ(unanswered.exitCode, 1);
  EXPECT_NE(unanswered.err.find("unanswered.play:3: click 输出: no answer queued for the question"),
            std::string::npos)
      << unanswered.err;

  JobRun missing = Play(dir, dir.path() / "missing.play");
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_NE(missing.err.find("cannot read the script"), std::string::npos) << missing.err;
}

}  // namespace
