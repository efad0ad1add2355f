#include <gtest/gtest.h>

#include "AutomationTimers.h"
#include "CfgOption.h"
#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "ProUtil.h"
#include "Registration.h"
#include "Shell.h"
#include "TkFile.h"
#include "Timers.h"

namespace {

class LifecycleTest : public testing::Test {
 protected:
  void SetUp() override { AutoSaveStarted = 1; }

  void SetSaveAuto(const std::string& isSaveWrkDir, const std::string& dir) {
    dir_.Write("app/config/SaveAuto.cfg",
               "[DlgSet]\nSaveAuto=0\n[WrkDir]\nIsSaveWrkDir=" + isSaveWrkDir + "\nDir=" + dir + "\n");
  }

  TestDir dir_;
  PluginHost host_{dir_};
  CTkFile file_;
};

}  // namespace

TEST_F(LifecycleTest, TerminateStoresTheWorkDirectoryWhetherOrNotItIsRestored) {
  SetSaveAuto("0", "");
  std::filesystem::create_directories(dir_.path() / "elsewhere");
  file_.ChangeCurDir(dir_.Wide("elsewhere"), 0);
  user_terminate();
  EXPECT_EQ(CCfgOption().GetWrkDir(), file_.GetCurDir());
  EXPECT_NE(dir_.Read("app/config/SaveAuto.cfg").find("elsewhere"), std::string::npos);
}

TEST_F(LifecycleTest, WorkDirectoryTimerRestoresTheStoredDirectoryOnceWhenAsked) {
  std::filesystem::create_directories(dir_.path() / "last dir");
  SetSaveAuto("1", dir_.path().string() + "/last□dir");
  std::wstring before = file_.GetCurDir();
  StartAutomationTimers();
  auto now = platform::TimerClock::now();
  EXPECT_EQ(platform::RunDueTimers(now + std::chrono::milliseconds(1000)), 0) << "it waits two seconds";
  EXPECT_EQ(platform::RunDueTimers(now + std::chrono::milliseconds(2500)), 1);
  EXPECT_NE(file_.GetCurDir(), before);
  EXPECT_NE(file_.GetCurDir().find(L"last dir"), std::wstring::npos);
  EXPECT_EQ(platform::RunDueTimers(now + std::chrono::seconds(10)), 0) << "it stops itself";
}

TEST_F(LifecycleTest, WorkDirectoryTimerLeavesTheDirectoryWhenSwitchedOffOrEmpty) {
  std::wstring before = file_.GetCurDir();
  for (auto [flag, dir] : {std::pair{"0", dir_.path().string()}, std::pair{"1", std::string()}}) {
    SetSaveAuto(flag, dir);
    StartAutomationTimers();
    platform::RunDueTimers(platform::TimerClock::now() + std::chrono::seconds(3));
    EXPECT_EQ(file_.GetCurDir(), before);
  }
}

TEST_F(LifecycleTest, OpenWorkDirectoryHandsTheCurrentDirectoryToTheShell) {
  std::vector<platform::ShellOpenRequest> requests;
  auto previous = platform::SetShellOpenHandler([&](const platform::ShellOpenRequest& request) {
    requests.push_back(request);
    return true;
  });
  user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(sim::RunAction("CmdOpenWrkDirId"));
  platform::SetShellOpenHandler(previous);
  ASSERT_EQ(requests.size(), 1u);
  EXPECT_EQ(requests[0].path, file_.GetCurDir());
  EXPECT_EQ(requests[0].showCommand, platform::kSwShow);
}
