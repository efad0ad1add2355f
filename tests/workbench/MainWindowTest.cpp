#include <gtest/gtest.h>

#include <QAction>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QApplication>
#include <QFileDialog>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

#include "HostChoosers.h"
#include "HostControl.h"
#include "MainWindow.h"
#include "ProGraphic.h"
#include "ProMessage.h"
#include "ProUtil.h"
#include "SampleSessionTest.h"
#include "Timers.h"

namespace {

// The plug-in registered in a host holding the sample session.
class MainWindowTest : public SampleSessionTest {
 protected:
  void SetUp() override {
    SampleSessionTest::SetUp();
    if (HasFatalFailure()) return;
    window = std::make_unique<MainWindow>();
    window->show();
  }
  void TearDown() override {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "DlgBomShow") widget->close();
    }
    window.reset();
  }

  QAction* Action(const char* name) const { return window->findChild<QAction*>(name); }
  // Runs `step` on the next modal window named `name` (any with ""), once it shows.
  static void WhenModal(const QString& name, std::function<void(QWidget*)> step) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [=] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (!dialog || (!name.isEmpty() && dialog->objectName() != name)) return;
      poll->stop();
      poll->deleteLater();
      step(dialog);
    });
    poll->start(5);
  }

  std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowTest, MenusAndToolbarCarryThePluginsCommands) {
  QAction* menuButton = Action("BOMShowMenuBtnID");
  ASSERT_NE(menuButton, nullptr);
  EXPECT_EQ(menuButton->text(), "零件清单显示");
  QAction* toolButton = Action("CmdBOMShow2Id");
  ASSERT_NE(toolButton, nullptr);
  EXPECT_EQ(toolButton->text(), "零件清单显示");
  EXPECT_FALSE(toolButton->icon().isNull());
}

TEST_F(MainWindowTest, CommandsGreyWhenUnavailableAndFollowTheCurrentModel) {
  auto* tree = window->findChild<QTreeWidget*>("ModelTree");
  EXPECT_TRUE(Action("BOMShowMenuBtnID")->isEnabled());
  EXPECT_EQ(tree->topLevelItem(0)->text(0), "REDUCER");
  EXPECT_GT(tree->topLevelItem(0)->childCount(), 5);

  ASSERT_TRUE(window->MakeCurrent(L"housing.prt"));
  EXPECT_FALSE(Action("BOMShowMenuBtnID")->isEnabled());
  EXPECT_FALSE(Action("CmdBOMShow2Id")->isEnabled());
  EXPECT_EQ(tree->topLevelItem(0)->text(0), "HOUSING");
  EXPECT_EQ(tree->topLevelItem(0)->childCount(), 0);

  ASSERT_TRUE(window->MakeCurrent(L"reducer.drw"));
  EXPECT_TRUE(Action("BOMShowMenuBtnID")->isEnabled());
  EXPECT_FALSE(window->MakeCurrent(L"nothing.prt"));
}

TEST_F(MainWindowTest, ClickingACommandOpensItsDialogAndShowsTheTrail) {
  Action("BOMShowMenuBtnID")->trigger();
  bool listOpen = false;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "DlgBomShow" && widget->isVisible()) listOpen = true;
  }
  EXPECT_TRUE(listOpen);
  auto* trail = window->findChild<QPlainTextEdit*>("TrailView");
  EXPECT_TRUE(trail->toPlainText().contains("#QK~DlgBomShow~ShowListCtrl~GetChek"));
}

TEST_F(MainWindowTest, ModelsThatCouldNotBeLoadedShowInTheMessageArea) {
  auto* messages = window->findChild<QPlainTextEdit*>("MessageArea");
  EXPECT_FALSE(messages->toPlainText().contains("could not load")) << "nothing is missing in the sample";
  dir_.Write("work/lost.asm", R"({"type": "assembly", "components": [{"id": 1, "model": "gone.prt"}]})");
  ASSERT_NE(sim::OpenModel(L"lost.asm"), nullptr);
  MainWindow next;
  QString shown = next.findChild<QPlainTextEdit*>("MessageArea")->toPlainText();
  EXPECT_TRUE(shown.startsWith("could not load gone.prt: gone.prt: no model file in "))
      << shown.toStdString();
}

int firings = 0;
void CountFiring(void*, unsigned, std::uintptr_t, unsigned long) { ++firings; }

TEST_F(MainWindowTest, TheWindowsEventLoopDrivesTheProcessTimers) {
  firings = 0;
  std::uintptr_t id = platform::SetTimer(nullptr, 0, 10, CountFiring);
  // Only the event loop runs while waiting; how long it takes is the machine's.
  EXPECT_TRUE(QTest::qWaitFor([] { return firings >= 2; }, 30000));
  platform::KillTimer(nullptr, id);
}

TEST_F(MainWindowTest, HostChooserAsksInAFileDialog) {
  InstallHostChoosers();
  std::filesystem::path chosen = dir_.path() / "out";
  std::filesystem::create_directories(chosen);
  QString caption;
  WhenModal("", [&](QWidget* widget) {
    auto* dialog = qobject_cast<QFileDialog*>(widget);
    ASSERT_NE(dialog, nullptr);
    caption = dialog->windowTitle();
    dialog->setDirectory(QString::fromStdString(chosen.string()));
    dialog->selectFile(QString::fromStdString(chosen.string()));
    QMetaObject::invokeMethod(dialog, "accept");
  });
  ProName label = L"选择目录";
  ProPath start{};
  ProPath selected{};
  ProError status = ProDirectoryChoose(label, nullptr, nullptr, start, selected);
  RemoveHostChoosers();
  EXPECT_EQ(status, PRO_TK_NO_ERROR);
  EXPECT_EQ(caption, "选择目录");
  EXPECT_EQ(std::filesystem::path(selected), chosen);
}

TEST_F(MainWindowTest, MousePickIsAskedAsAPointUnderTheHostsPrompt) {
  InstallHostChoosers();
  QString prompt;
  WhenModal("PickPointDialog", [&](QWidget* dialog) {
    prompt = dialog->findChild<QLabel*>("PickPrompt")->text();
    dialog->findChild<QDoubleSpinBox*>("PickX")->setValue(12.5);
    dialog->findChild<QDoubleSpinBox*>("PickY")->setValue(-40);
    QMetaObject::invokeMethod(dialog, "accept");
  });
  ProFileName file = L"BOMMsg.txt";
  ProMessageDisplay(file, const_cast<char*>("please select a pos for placing table"));
  ProMouseButton pressed = PRO_NO_BUTTON;
  ProPoint3d point{};
  ProError status = ProMousePickGet(PRO_LEFT_BUTTON, &pressed, point);
  RemoveHostChoosers();
  ASSERT_EQ(status, PRO_TK_NO_ERROR);
  EXPECT_EQ(prompt, "请选择表格放置位置");
  EXPECT_DOUBLE_EQ(point[0], 12.5);
  EXPECT_DOUBLE_EQ(point[1], -40);
}

}  // namespace
