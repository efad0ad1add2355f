#include <gtest/gtest.h>

#include <QApplication>
#include <QRadioButton>

#include <vector>

#include "DlgBomShow.h"
#include "HostControl.h"
#include "ListCtrlEx.h"
#include "MessageBox.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"

namespace {

std::vector<CDlgBomShow*> OpenLists() {
  std::vector<CDlgBomShow*> lists;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* found = dynamic_cast<CDlgBomShow*>(widget); found && found->isVisible()) lists.push_back(found);
  }
  return lists;
}

class BomListCommandTest : public testing::Test {
 protected:
  void SetUp() override {
    AutoSaveStarted = 1;  // the timers are not under test here
    user_initialize(0, nullptr, nullptr, nullptr, nullptr);
    ASSERT_EQ(sim::LoadSession(std::filesystem::path(BOM_SAMPLES_DIR) / "reducer"), PRO_TK_NO_ERROR);
  }
  void TearDown() override {
    for (CDlgBomShow* list : OpenLists()) list->close();
  }

  TestDir dir_;
  PluginHost host_{dir_};
};

TEST_F(BomListCommandTest, EachCommandReplacesTheOpenListWithANewOne) {
  ASSERT_TRUE(sim::RunAction("CmdBOMShowId"));
  ASSERT_EQ(OpenLists().size(), 1u);
  EXPECT_GT(OpenLists()[0]->findChild<CListCtrlEx*>("BomList")->GetItemCount(), 5);
  OpenLists()[0]->findChild<QRadioButton*>("LevelMulti")->click();
  OpenLists()[0]->findChild<CListCtrlEx*>("BomList")->SetItemText(0, 2, L"edited");

  ASSERT_TRUE(sim::RunAction("CmdBOMShow2Id"));
  ASSERT_EQ(OpenLists().size(), 1u);
  CListCtrlEx* list = OpenLists()[0]->findChild<CListCtrlEx*>("BomList");
  // Built anew: the stored level is read again, the edit is gone.
  EXPECT_TRUE(OpenLists()[0]->findChild<QRadioButton*>("LevelMulti")->isChecked());
  EXPECT_EQ(list->GetItemText(0, 1), L"0");
  EXPECT_NE(list->GetItemText(0, 2), L"edited");
}

}  // namespace
