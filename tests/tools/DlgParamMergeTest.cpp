#include "DlgParamMerge.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <memory>

#include "HostControl.h"
#include "ListCtrlEx.h"
#include "ModelDef.h"
#include "ParamDefs.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"
#include "TkParam.h"

namespace {

constexpr int kColName = 1;
constexpr int kColValue = 2;

// A part with a text, a real and an integer parameter, current in session.
class DlgParamMergeTest : public testing::Test {
 protected:
  void SetUp() override {
    sim::ModelDef def;
    def.parameters = {TextParam(L"图号", L"JSQ-01-001"), TextParam(L"名称", L"输入轴"),
                      RealParam(L"长度", 212.5), IntParam(L"数量", 2)};
    mdl = sim::AddModel(L"input_shaft.prt", def);
    host.MakeCurrent(mdl);
  }

  void Open() {
    dialog = std::make_unique<CDlgParamMerge>();
    dialog->show();
    params = dialog->findChild<CListCtrlEx*>("ParamList");
    merge = dialog->findChild<QListWidget*>("MergeList");
    name = dialog->findChild<QLineEdit*>("NameEdit");
    preview = dialog->findChild<QLineEdit*>("PreviewEdit");
    decimals = dialog->findChild<QComboBox*>("DecimalsCombo");
  }
  QPushButton* Button(const char* objectName) const { return dialog->findChild<QPushButton*>(objectName); }
  int ParamRow(const std::wstring& paramName) const {
    for (int row = 0; row < params->GetItemCount(); ++row) {
      if (params->GetItemText(row, kColName) == paramName) return row;
    }
    return -1;
  }
  void Pick(const std::wstring& paramName) {
    int row = ParamRow(paramName);
    ASSERT_GE(row, 0);
    QTest::mouseDClick(params->viewport(), Qt::LeftButton, {},
                       params->visualRect(params->model()->index(row, kColName)).center());
  }
  void SelectMerged(int pos) {
    QTest::mouseClick(merge->viewport(), Qt::LeftButton, {},
                      merge->visualItemRect(merge->item(pos)).center());
  }
  std::vector<std::wstring> Merged() const {
    std::vector<std::wstring> names;
    for (int row = 0; row < merge->count(); ++row) names.push_back(merge->item(row)->text().toStdWString());
    return names;
  }
  bool MovesEnabled() const {
    return Button("RemoveButton")->isEnabled() || Button("UpButton")->isEnabled() ||
           Button("DownButton")->isEnabled();
  }

  TestDir dir;
  PluginHost host{dir};
  ProMdl mdl = nullptr;
  CTkParam param;
  std::unique_ptr<CDlgParamMerge> dialog;
  CListCtrlEx* params = nullptr;
  QListWidget* merge = nullptr;
  QLineEdit* name = nullptr;
  QLineEdit* preview = nullptr;
  QComboBox* decimals = nullptr;
};

TEST_F(DlgParamMergeTest, OpensOnEveryParameterAtSixDecimalsWithNothingToDo) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), "参数合并");
  EXPECT_TRUE(dialog->windowFlags() & Qt::WindowStaysOnTopHint);
  ASSERT_EQ(params->GetItemCount(), 4);
  EXPECT_EQ(params->GetItemText(0, 0), L"01");
  EXPECT_EQ(params->GetItemText(0, kColName), L"图号");
  EXPECT_EQ(params->GetItemText(2, kColValue), L"212.500000");
  EXPECT_EQ(params->GetItemText(3, kColValue), L"2");
  EXPECT_FALSE(params->item(0, 0)->data(Qt::CheckStateRole).isValid()) << "no check boxes";
  EXPECT_EQ(decimals->count(), 7);
  EXPECT_EQ(decimals->currentText(), "2");
  EXPECT_FALSE(MovesEnabled());
  EXPECT_FALSE(Button("CreateButton")->isEnabled());
  EXPECT_TRUE(Button("CreateButton")->isDefault());
}

TEST_F(DlgParamMergeTest, PickedValuesJoinWithTheChosenDecimals) {
  Open();
  Pick(L"图号");
  Pick(L"长度");
  Pick(L"图号");
  EXPECT_EQ(Merged(), (std::vector<std::wstring>{L"图号", L"长度", L"图号"}));
  EXPECT_EQ(preview->text(), "JSQ-01-001212.50JSQ-01-001");
  decimals->setCurrentIndex(0);
  EXPECT_EQ(preview->text(), "JSQ-01-001212JSQ-01-001");
  EXPECT_EQ(params->GetItemText(2, kColValue), L"212.500000") << "the list keeps six decimals";
}

TEST_F(DlgParamMergeTest, MovesNeedASelectionAndLeaveNone) {
  Open();
  for (const wchar_t* picked : {L"图号", L"名称", L"数量"}) Pick(picked);
  SelectMerged(0);
  EXPECT_TRUE(MovesEnabled());
  Button("UpButton")->click();
  EXPECT_EQ(Merged(), (std::vector<std::wstring>{L"图号", L"名称", L"数量"})) << "the first stays first";
  EXPECT_FALSE(MovesEnabled());

  SelectMerged(0);
  Button("DownButton")->click();
  EXPECT_EQ(Merged(), (std::vector<std::wstring>{L"名称", L"图号", L"数量"}));
  EXPECT_EQ(preview->text(), "输入轴JSQ-01-0012");
  EXPECT_FALSE(MovesEnabled());

  // Moving the last name down takes it out of the order.
  SelectMerged(2);
  Button("DownButton")->click();
  EXPECT_EQ(Merged(), (std::vector<std::wstring>{L"名称", L"图号"}));
  EXPECT_EQ(preview->text(), "输入轴JSQ-01-001");

  SelectMerged(0);
  Button("RemoveButton")->click();
  EXPECT_EQ(Merged(), (std::vector<std::wstring>{L"图号"}));
  EXPECT_FALSE(MovesEnabled());
}

TEST_F(DlgParamMergeTest, CreateWritesThePreviewAsTypedAsAStringOnce) {
  Open();
  Pick(L"图号");
  Pick(L"名称");
  name->setText("图号名称");
  EXPECT_TRUE(Button("CreateButton")->isEnabled());
  name->setText("名称");
  EXPECT_FALSE(Button("CreateButton")->isEnabled()) << "an existing parameter is never overwritten";
  name->setText("代号");
  // Typed text stands until an event updates the preview; a change of the
  // name box is one.
  preview->setText("typed");
  name->setText("代号名称");
  EXPECT_EQ(preview->text(), "JSQ-01-001输入轴");
  preview->setText("JSQ-01-001 输入轴");
  Button("CreateButton")->click();

  EXPECT_EQ(param.GetMdlParamType(mdl, L"代号名称"), CTkParam::kText);
  EXPECT_EQ(param.GetMdlParamValue(mdl, L"代号名称", 2), L"JSQ-01-001 输入轴");
  EXPECT_EQ(params->GetItemCount(), 5);
  EXPECT_EQ(params->GetItemText(4, kColName), L"代号名称");
  EXPECT_FALSE(Button("CreateButton")->isEnabled());
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(DlgParamMergeTest, ANumberJoinedAloneStillMakesAStringAndAnEmptyOrderAnEmptyOne) {
  Open();
  Pick(L"数量");
  name->setText("件数");
  Button("CreateButton")->click();
  EXPECT_EQ(param.GetMdlParamType(mdl, L"件数"), CTkParam::kText);
  EXPECT_EQ(param.GetMdlParamValue(mdl, L"件数", 2), L"2");

  SelectMerged(0);
  Button("RemoveButton")->click();
  EXPECT_EQ(preview->text(), "");
  name->setText("空");
  Button("CreateButton")->click();
  EXPECT_EQ(param.GetMdlParamType(mdl, L"空"), CTkParam::kText);
  EXPECT_EQ(param.GetMdlParamValue(mdl, L"空", 2), L"");
}

TEST_F(DlgParamMergeTest, ANameTheCurrentModelNoLongerHasAddsNothing) {
  Open();
  Pick(L"图号");
  Pick(L"名称");
  sim::ModelDef other;
  other.parameters = {TextParam(L"名称", L"挡油环")};
  host.MakeCurrent(sim::AddModel(L"oil_ring.prt", other));
  decimals->setCurrentIndex(3);
  EXPECT_EQ(preview->text(), "挡油环");
}

TEST_F(DlgParamMergeTest, WithoutACurrentModelTheListIsEmptyAndNothingIsCreated) {
  sim::SetCurrentModel(nullptr);
  Open();
  EXPECT_EQ(params->GetItemCount(), 0);
  name->setText("新参数");
  EXPECT_FALSE(Button("CreateButton")->isEnabled());
}

// The command is reachable only with a current model and waits for the
// dialog to close.
TEST_F(DlgParamMergeTest, TheCommandOpensTheModalDialog) {
  AutoSaveStarted = 1;  // the timers are not under test here
  user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  QString shownTitle;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    auto* shown = dynamic_cast<CDlgParamMerge*>(QApplication::activeModalWidget());
    if (!shown) return;
    poll.stop();
    shownTitle = shown->windowTitle();
    shown->findChild<QPushButton*>("CancelButton")->click();
  });
  poll.start(5);
  ASSERT_TRUE(sim::RunAction("CmdParamMergeId"));
  EXPECT_EQ(shownTitle, "参数合并");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
