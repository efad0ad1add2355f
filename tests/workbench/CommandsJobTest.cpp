// The workbench run as a user runs it: the plug-in loaded through its entry
// points into the sample session.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "JobRun.h"

namespace {

class CommandsJobTest : public testing::Test {
 protected:
  JobRun Workbench(const std::string& arguments) { return RunJob(dir_, "commands", arguments); }

  std::map<std::string, std::string> Availability(const std::string& arguments) {
    JobRun run = Workbench(arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    std::map<std::string, std::string> states;
    for (const std::string& line : run.lines) {
      size_t tab = line.find('\t');
      if (line.rfind("Cmd", 0) == 0 && tab != std::string::npos)
        states[line.substr(0, tab)] = line.substr(tab + 1);
    }
    return states;
  }

  TestDir dir_;
};

}  // namespace

TEST_F(CommandsJobTest, SampleAssemblyOffersEveryCommandAndShowsThePluginsMenus) {
  JobRun run = Workbench("");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_NE(run.out.find("menu BOMMenubarId\tBOM工具"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("  button BOMShowMenuBtnID\t零件清单显示\t-> CmdBOMShowId"), std::string::npos);
  EXPECT_NE(run.out.find("  button SPLMenuBtnId\t标准件库\t-> CmdSPLId"), std::string::npos);
  int commands = 0;
  for (const std::string& line : run.lines) {
    if (line.rfind("Cmd", 0) == 0) {
      ++commands;
      EXPECT_NE(line.find("\tavailable"), std::string::npos) << line;
    }
  }
  EXPECT_EQ(commands, 19);
}

TEST_F(CommandsJobTest, AvailabilityFollowsTheCurrentModel) {
  auto part = Availability("--current housing.prt");
  EXPECT_EQ(part["CmdBOMShowId"], "unavailable");
  EXPECT_EQ(part["CmdParamMergeId"], "available");
  EXPECT_EQ(part["CmdNewDrwId"], "available");
  EXPECT_EQ(part["CmdSPLId"], "unavailable");

  auto drawing = Availability("--current reducer.drw");
  EXPECT_EQ(drawing["CmdBOMShowId"], "available");
  EXPECT_EQ(drawing["CmdDelOldMdlID"], "unavailable");

  auto none = Availability("--current none");
  EXPECT_EQ(none["CmdParamMergeId"], "unavailable");
  EXPECT_EQ(none["CmdBOMSetId"], "available");
  EXPECT_EQ(none.size(), 19u);
}

TEST_F(CommandsJobTest, HostStartWritesTheTrailAndExitStoresTheWorkDirectory) {
  ASSERT_EQ(Workbench("").exitCode, 0);
  EXPECT_EQ(dir_.Read("work/trail.txt.1").rfind("!trail file version", 0), 0u);
  ASSERT_EQ(Workbench("").exitCode, 0);
  EXPECT_TRUE(std::filesystem::exists(dir_.path() / "work" / "trail.txt.2")) << "a new trail per host start";
  EXPECT_NE(dir_.Read("app/config/SaveAuto.cfg").find("Dir=" + (dir_.path() / "work").string()),
            std::string::npos);
}

TEST_F(CommandsJobTest, BadInputIsRefusedWithAReason) {
  JobRun unknownModel = Workbench("--current nothing.prt");
  EXPECT_EQ(unknownModel.exitCode, 1);
  EXPECT_NE(unknownModel.all().find("nothing.prt"), std::string::npos);
  JobRun badOption = Workbench("--colour red");
  EXPECT_EQ(badOption.exitCode, 2);
  EXPECT_NE(badOption.all().find("usage:"), std::string::npos);
  JobRun noSession = Workbench("--session '" + (dir_.path() / "none").string() + "'");
  EXPECT_EQ(noSession.exitCode, 1);
}
