#include "DlgSaveAuto.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

#include "AutoSave.h"
#include "CfgOption.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"
#include "Timers.h"
#include "WidgetSteps.h"

namespace {

void Idle(void*, unsigned, std::uintptr_t, unsigned long) {}

class DlgSaveAutoTest : public testing::Test {
 protected:
  void SetUp() override {
    dir_.Write("app/config/SaveAuto.cfg", "[DlgSet]\nSaveAuto=1\nDelOldVer=0\nTime=10\n");
    // Keeps the timer under test off id 1, as a host's earlier timers do.
    platform::KillTimer(nullptr, platform::SetTimer(nullptr, 0, 1000, Idle));
  }
  static std::vector<unsigned> SaveTimerPeriods() {
    std::vector<unsigned> periods;
    for (const auto& timer : platform::ActiveTimers()) {
      if (timer.proc == &AutoSaveTick) periods.push_back(timer.elapseMs);
    }
    std::sort(periods.begin(), periods.end());
    return periods;
  }

  TestDir dir_;
  PluginHost host_{dir_};
};

}  // namespace

TEST_F(DlgSaveAutoTest, EachControlIsWrittenAtOnce) {
  CDlgSaveAuto dialog;
  dialog.show();
  EXPECT_EQ(dialog.windowTitle(), "自动保存设置");
  auto* saveAuto = dialog.findChild<QCheckBox*>("SaveAutoCheck");
  auto* delOldVer = dialog.findChild<QCheckBox*>("DelOldVerCheck");
  auto* time = dialog.findChild<QLineEdit*>("TimeEdit");
  ASSERT_TRUE(saveAuto && delOldVer && time);
  EXPECT_TRUE(saveAuto->isChecked());
  EXPECT_FALSE(delOldVer->isChecked());
  EXPECT_EQ(time->text(), "10");

  saveAuto->click();
  EXPECT_EQ(CCfgOption().GetSaveAuto(), 0);
  delOldVer->click();
  EXPECT_EQ(CCfgOption().GetDelOldVer(), 1);
  time->clear();
  QTest::keyClicks(time, "3x-5");
  EXPECT_EQ(time->text(), "35") << "digits only";
  EXPECT_EQ(CCfgOption().GetSaveAutoTime(), 35);
}

// The command stops timer id 1, which is not the running one, and starts
// another: both run, as in the host.
TEST_F(DlgSaveAutoTest, TheCommandAddsATimerBesideTheRunningOne) {
  StartAutoSaveTimer();
  ASSERT_EQ(SaveTimerPeriods(), (std::vector<unsigned>{600000}));
  AutoSaveStarted = 1;  // the timers of registration are not under test here
  user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  WhenShown<CDlgSaveAuto>([](CDlgSaveAuto* dialog) {
    auto* time = dialog->findChild<QLineEdit*>("TimeEdit");
    time->selectAll();
    QTest::keyClicks(time, "2");
    dialog->reject();
  });
  ASSERT_TRUE(sim::RunAction("CmdSaveAutoSetId"));
  EXPECT_EQ(SaveTimerPeriods(), (std::vector<unsigned>{120000, 600000}));
}
