#include <gtest/gtest.h>

#include <filesystem>

#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"
#include "ScopedTrash.h"
#include "Timers.h"

namespace {

// The automation group's buttons reach their commands.
class AutoCommandsTest : public testing::Test {
 protected:
  void SetUp() override {
    AutoSaveStarted = 1;  // the timers of registration are not under test here
    for (int i = 1; i <= 2; ++i) dir_.Write("work/shaft.prt." + std::to_string(i), R"({"type": "part"})");
    host_.MakeCurrent(sim::OpenModel(L"shaft.prt"));
    user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  }

  TestDir dir_;
  PluginHost host_{dir_};
  ScopedTrash trash_{dir_};
};

}  // namespace

TEST_F(AutoCommandsTest, NewDrawingBackupAndCleanupRunOnTheCurrentPart) {
  ASSERT_TRUE(sim::RunAction("CmdNewDrwId"));
  ASSERT_EQ(sim::Macros().size(), 1u);
  EXPECT_NE(sim::Macros()[0].find(L"`SHAFT`;"), std::wstring::npos);

  std::filesystem::create_directories(dir_.path() / "backup");
  sim::PushAnswer("ProDirectoryChoose", dir_.Wide("backup"));
  ASSERT_TRUE(sim::RunAction("CmdBackupMdlId"));
  EXPECT_TRUE(std::filesystem::exists(dir_.path() / "backup" / "shaft.prt.2"));

  ASSERT_TRUE(sim::RunAction("CmdDelOldMdlID"));
  EXPECT_EQ(trash_.Names(), std::vector<std::string>{"shaft.prt.1"});
}

TEST_F(AutoCommandsTest, SettingsCommandOpensNothingAndKeepsTheTimersInAHeadlessHost) {
  dir_.Write("app/config/SaveAuto.cfg", "[DlgSet]\nSaveAuto=1\nTime=1\n");
  size_t before = platform::ActiveTimers().size();
  ASSERT_TRUE(sim::RunAction("CmdSaveAutoSetId"));
  EXPECT_EQ(platform::ActiveTimers().size(), before);
}
