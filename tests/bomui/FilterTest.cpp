#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "CfgOption.h"
#include "DlgBomFilterSet.h"
#include "DlgFilter.h"
#include "DlgToolFilter.h"
#include "FilterAPI.h"
#include "FilterRules.h"
#include "HostControl.h"
#include "ListCtrlEx.h"
#include "MessageBox.h"
#include "PluginHost.h"
#include "ToolFilterStore.h"

namespace {

TEST(FilterRules, SchemeOnModelNameTestsTheNameWithTrimmedKeys) {
  BomFilter scheme{L"Sec1", L"标准件", L"模型名称", L" GB , GP", 0};
  BomCollectFilter filter = MakeCollectFilter(scheme, L"模型名称");
  EXPECT_EQ(filter.key, L"");
  EXPECT_EQ(filter.values, (std::vector<std::wstring>{L"GB", L"GP"}));
  EXPECT_EQ(filter.keepMatches, 0);
  scheme.RefParamName = L"备注";
  scheme.IsShow = 1;
  scheme.FilterKey = L"";
  filter = MakeCollectFilter(scheme, L"模型名称");
  EXPECT_EQ(filter.key, L"备注");
  EXPECT_TRUE(filter.values.empty());
  EXPECT_EQ(filter.keepMatches, 1);
}

TEST(FilterRules, ColumnValuesAreDistinctWithCaseInOrderOfFirstAppearance) {
  FilterData data = CollectColumnValues(3, {L"b", L"a", L"A", L"b", L""});
  EXPECT_EQ(data.col, 3);
  EXPECT_EQ(data.name, L"Col3");
  EXPECT_EQ(data.values, (std::vector<std::wstring>{L"b", L"a", L"A", L""}));
}

TEST(FilterRules, IncludeTakesOutTheUncheckedExcludeTheCheckedAndNothingOrAllCheckedNothing) {
  FilterData column = CollectColumnValues(1, {L"x", L"y", L"z"});
  EXPECT_EQ(MakeFilterResult(column, {true, false, true}, true).values, (std::vector<std::wstring>{L"y"}));
  EXPECT_EQ(MakeFilterResult(column, {true, false, true}, false).values,
            (std::vector<std::wstring>{L"x", L"z"}));
  EXPECT_TRUE(MakeFilterResult(column, {false, false, false}, true).values.empty());
  EXPECT_TRUE(MakeFilterResult(column, {false, false, false}, false).values.empty());
  EXPECT_TRUE(MakeFilterResult(column, {true, true, true}, true).values.empty());
  EXPECT_EQ(MakeFilterResult(column, {false, false, false}, true).col, 1);
}

TEST(FilterRules, RemovalComparesUpperCasedTexts) {
  FilterData result;
  result.values = {L"a"};
  EXPECT_TRUE(IsRemovedByFilter(result, L"A"));
  EXPECT_TRUE(IsRemovedByFilter(result, L"a"));
  EXPECT_FALSE(IsRemovedByFilter(result, L"ab"));
}

// A plug-in installation with the delivered BomFilter.cfg and ToolFilter.cfg.
class FilterDialogTest : public testing::Test {
 protected:
  void SetUp() override {
    previous = platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
      prompts.push_back(request.text);
      return platform::kIdOk;
    });
  }
  void TearDown() override { platform::SetMessageBoxHandler(previous); }

  ProMdl AddPartWithParam(const std::wstring& name, const std::wstring& note) {
    sim::ModelDef def;
    sim::ParameterDef param;
    param.name = L"备注";
    param.text = note;
    def.parameters.push_back(param);
    return sim::AddModel(name + L".prt", def);
  }

  TestDir dir;
  PluginHost host{dir};
  platform::MessageBoxHandler previous;
  std::vector<std::wstring> prompts;
};

TEST_F(FilterDialogTest, BomFilterSetShowsSchemeAfterDelayAndApplyWritesIt) {
  CDlgBomFilterSet dialog;
  auto* list = dialog.findChild<QListWidget*>("SchemeList");
  ASSERT_EQ(list->count(), 4);
  EXPECT_EQ(list->item(1)->text(), "屏蔽标准件");
  auto* name = dialog.findChild<QLineEdit*>("NameEdit");
  list->setCurrentRow(2);
  EXPECT_EQ(name->text(), "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return name->text() == QString("只显示标准件"); }, 2000));
  EXPECT_EQ(name->text(), QString("只显示标准件"));
  EXPECT_EQ(dialog.findChild<QComboBox*>("ShowCombo")->currentText(), "显示");
  EXPECT_EQ(dialog.findChild<QLineEdit*>("KeyEdit")->placeholderText(), "如:GB,GP");

  name->setText("标准件");
  dialog.findChild<QComboBox*>("ParamCombo")->setEditText("图号");
  dialog.findChild<QLineEdit*>("KeyEdit")->setText("GB,GP");
  dialog.findChild<QComboBox*>("ShowCombo")->setCurrentIndex(1);
  dialog.findChild<QPushButton*>("ApplyButton")->click();

  std::vector<BomFilter> schemes;
  CCfgOption().GetBomFilters(schemes);
  ASSERT_EQ(schemes.size(), 4u);
  EXPECT_EQ(schemes[2].ProjectName, L"标准件");
  EXPECT_EQ(schemes[2].RefParamName, L"图号");
  EXPECT_EQ(schemes[2].FilterKey, L"GB,GP");
  EXPECT_EQ(schemes[2].IsShow, 0);
  EXPECT_EQ(list->item(2)->text(), "标准件");
  EXPECT_EQ(list->currentRow(), -1);
}

// The first row is selected at opening, yet the fields wait for a click,
// also a click on that same row.
TEST_F(FilterDialogTest, BomFilterSetOpensWithEmptyFieldsUntilARowIsClicked) {
  CDlgBomFilterSet dialog;
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  auto* list = dialog.findChild<QListWidget*>("SchemeList");
  auto* name = dialog.findChild<QLineEdit*>("NameEdit");
  EXPECT_EQ(list->currentRow(), 0);
  QTest::qWait(300);
  EXPECT_EQ(name->text(), "");
  EXPECT_EQ(dialog.findChild<QComboBox*>("ParamCombo")->currentText(), "");
  EXPECT_EQ(dialog.findChild<QComboBox*>("ShowCombo")->currentText(), "");

  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  EXPECT_TRUE(QTest::qWaitFor([&] { return name->text() == QString("全部显示"); }, 2000));
  EXPECT_EQ(dialog.findChild<QComboBox*>("ParamCombo")->currentText(), "模型名称");
  EXPECT_EQ(dialog.findChild<QComboBox*>("ShowCombo")->currentText(), "屏蔽");
}

TEST_F(FilterDialogTest, FilterDialogGivesTheValuesToTakeOut) {
  CDlgFilter dialog;
  dialog.SetFilterColumns(
      {CollectColumnValues(1, {L"GB1", L"P2"}), CollectColumnValues(4, {L"钢", L"铝", L"铜"})});
  auto* columns = dialog.findChild<QComboBox*>("ColumnCombo");
  auto* values = dialog.findChild<CListCtrlEx*>("ValueList");
  EXPECT_EQ(dialog.findChild<QComboBox*>("ModeCombo")->currentText(), "包含");
  EXPECT_EQ(columns->currentText(), "Col1");
  EXPECT_EQ(values->GetItemCount(), 2);
  columns->setCurrentIndex(1);
  ASSERT_EQ(values->GetItemCount(), 3);
  EXPECT_EQ(values->GetItemText(1, 0), L"铝");
  EXPECT_FALSE(values->GetCheck(1));
  values->SetCheck(1, true);
  dialog.findChild<QComboBox*>("ModeCombo")->setCurrentIndex(1);
  dialog.findChild<QPushButton*>("OkButton")->click();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  FilterData result;
  dialog.GetFilterResult(result);
  EXPECT_EQ(result.col, 4);
  EXPECT_EQ(result.values, (std::vector<std::wstring>{L"铝"}));
  EXPECT_TRUE(prompts.empty());
}

TEST_F(FilterDialogTest, EachToolKeepsItsOwnCurrentScheme) {
  ProMdl standard = host.AddPart(L"GB_BOLT");
  ProMdl own = host.AddPart(L"SHAFT");
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"MatTool"), L"") << "no scheme: every model passes";
  EXPECT_NE(CFilterAPI().IsShowMdl(standard, L"MatTool"), 0);
  CToolFilterStore store;
  store.SetCurrentNumber(L"MatTool", 1);
  store.SetCurrentNumber(L"RelationTool", 2);
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"MatTool"), L"屏蔽标准件");
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"RelationTool"), L"只显示标准件");
  EXPECT_EQ(CFilterAPI().IsShowMdl(standard, L"MatTool"), 0);
  EXPECT_NE(CFilterAPI().IsShowMdl(own, L"MatTool"), 0);
  EXPECT_NE(CFilterAPI().IsShowMdl(standard, L"RelationTool"), 0);
  EXPECT_EQ(CFilterAPI().IsShowMdl(own, L"RelationTool"), 0);
  EXPECT_NE(CFilterAPI().IsShowMdl(standard, L"MdlExportTool"), 0);
}

TEST_F(FilterDialogTest, SchemeOnParameterComparesTheValueAsItStands) {
  ProMdl bought = AddPartWithParam(L"P1", L"外购件");
  ProMdl small = AddPartWithParam(L"P2", L"gb-1");
  CToolFilterStore store;
  store.SetScheme({L"Sec1", L"外购", L"备注", L"外购, GB", 0});
  store.SetCurrentNumber(L"MdlChkTool", 1);
  EXPECT_EQ(CFilterAPI().IsShowMdl(bought, L"MdlChkTool"), 0);
  EXPECT_NE(CFilterAPI().IsShowMdl(small, L"MdlChkTool"), 0);
}

TEST_F(FilterDialogTest, ToolFilterDialogChoosesAndEditsTheToolsScheme) {
  {
    CDlgToolFilter dialog(L"MdlReNameTool");
    auto* choice = dialog.findChild<QComboBox*>("SchemeCombo");
    ASSERT_EQ(choice->count(), 3);
    EXPECT_EQ(choice->currentText(), "无");
    choice->setCurrentIndex(2);
    EXPECT_EQ(dialog.findChild<QLineEdit*>("NameEdit")->text(), "只显示标准件");
    dialog.findChild<QLineEdit*>("KeyEdit")->setText("GB,JB");
    dialog.findChild<QPushButton*>("OkButton")->click();
  }
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"MdlReNameTool"), L"只显示标准件");
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"MatTool"), L"");
  std::optional<BomFilter> scheme = CToolFilterStore().GetCurrent(L"MdlReNameTool");
  ASSERT_TRUE(scheme);
  EXPECT_EQ(scheme->FilterKey, L"GB,JB");
  ProMdl jb = host.AddPart(L"JB_PIN");
  EXPECT_NE(CFilterAPI().IsShowMdl(jb, L"MdlReNameTool"), 0);

  CDlgToolFilter cancelled(L"MdlReNameTool");
  cancelled.findChild<QComboBox*>("SchemeCombo")->setCurrentIndex(0);
  cancelled.findChild<QPushButton*>("CancelButton")->click();
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"MdlReNameTool"), L"只显示标准件");
}

TEST_F(FilterDialogTest, LoadFilterDlgRunsTheDialogModally) {
  QTimer::singleShot(0, [] {
    auto* dialog = dynamic_cast<CDlgToolFilter*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QComboBox*>("SchemeCombo")->setCurrentIndex(1);
    dialog->findChild<QPushButton*>("OkButton")->click();
  });
  CFilterAPI().LoadFilterDlg(L"MdlExportTool");
  EXPECT_EQ(CFilterAPI().GetCurPrj(L"MdlExportTool"), L"屏蔽标准件");
}

}  // namespace
