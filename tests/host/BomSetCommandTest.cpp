#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include "DlgBomSet.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"

namespace {

class BomSetCommandTest : public testing::Test {
 protected:
  void SetUp() override {
    AutoSaveStarted = 1;  // the timers are not under test here
    user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  }

  TestDir dir_;
  PluginHost host_{dir_};
};

TEST_F(BomSetCommandTest, BothCommandsWaitForTheSettingsDialogToClose) {
  for (const char* command : {"CmdBOMSetId", "CmdBOMSet2Id"}) {
    QString shownTitle;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      auto* dialog = dynamic_cast<CDlgBomSet*>(QApplication::activeModalWidget());
      if (!dialog) return;
      poll.stop();
      shownTitle = dialog->windowTitle();
      dialog->findChild<QPushButton*>("CloseButton")->click();
    });
    poll.start(5);
    ASSERT_TRUE(sim::RunAction(command));
    EXPECT_EQ(shownTitle, "零件清单设置") << command;
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << command;
  }
}

}  // namespace
