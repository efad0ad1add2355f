#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <functional>
#include <memory>
#include <set>
#include <thread>

#include "CommaLocale.h"
#include "BomListCells.h"
#include "CfgOption.h"
#include "DlgBomFilterSet.h"
#include "DlgBomShow.h"
#include "DlgFilter.h"
#include "DlgLoad.h"
#include "HostControl.h"
#include "WidgetSteps.h"
#include "CallHold.h"
#include "CallLog.h"
#include "Inspection.h"
#include "IniEx.h"
#include "ListCtrlEx.h"
#include "MessageBox.h"
#include "PluginHost.h"
#include "TkParam.h"

namespace {

// List columns of the delivered Tbl.cfg.
constexpr int kColIndex = 0;
constexpr int kColLevel = 1;
constexpr int kColDrawingNo = 2;
constexpr int kColName = 3;
constexpr int kColQty = 4;
constexpr int kColNote = 8;
constexpr int kColModel = 9;

TEST(BomListCells, LevelTextJoinsTheOutlineNumber) {
  BomMdl row;
  EXPECT_EQ(LevelText(row, L"."), L"");
  row.level = 0;
  EXPECT_EQ(LevelText(row, L"."), L"0");
  row.level = 2;
  row.BomCmpIds[0] = 3;
  row.BomCmpIds[1] = 12;
  EXPECT_EQ(LevelText(row, L"-"), L"3-12");
}

TEST(BomListCells, MassZeroIsZeroWhateverTheDecimals) {
  EXPECT_EQ(MassText(0.0, 3), L"0");
  EXPECT_EQ(MassText(1.5, 3), L"1.500");
  EXPECT_EQ(MassText(2.456, 0), L"2");
  CommaLocale comma;
  EXPECT_EQ(MassText(1.5, 3), L"1.500");
}

TEST(BomListCells, ValueTypesAndRowNumbers) {
  EXPECT_EQ(ParamValueTypeOf(0), CTkParam::kText);
  EXPECT_EQ(ParamValueTypeOf(1), CTkParam::kInteger);
  EXPECT_EQ(ParamValueTypeOf(2), CTkParam::kDouble);
  EXPECT_EQ(ParamValueTypeOf(7), CTkParam::kText);
  EXPECT_EQ(RowIndexOf(L"12"), 11);
  EXPECT_EQ(RowIndexOf(L"x"), -1);
}

TEST(BomListCells, SortWarningOnlyForAColumnWithoutParameter) {
  std::vector<ColInfo> sortCols(2);
  sortCols[0].paramName = L"图号";
  EXPECT_FALSE(IsSortParamMissing(0, sortCols));
  EXPECT_FALSE(IsSortParamMissing(1, sortCols));
  EXPECT_TRUE(IsSortParamMissing(2, sortCols));
}

// The sample reducer in session with the plug-in's delivered settings; the
// dialog's prompts are recorded and answered OK.
class DlgBomShowTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(sim::LoadSession(std::filesystem::path(BOM_SAMPLES_DIR) / "reducer"), PRO_TK_NO_ERROR);
    previous = platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
      prompts.push_back(request.caption + L":" + request.text);
      return platform::kIdOk;
    });
  }
  void TearDown() override {
    dialog.reset();
    platform::SetMessageBoxHandler(previous);
  }

  void Open() {
    dialog = std::make_unique<CDlgBomShow>();
    dialog->OnInitDialog();
    dialog->show();
    list = dialog->findChild<CListCtrlEx*>("BomList");
  }
  template <typename T = QWidget>
  T* Child(const char* name) const {
    return dialog->findChild<T*>(name);
  }
  std::wstring OptValue(const std::wstring& key) const {
    std::wstring value;
    CIniEx().GetValue(CCfgOption().GetOptCfgPath(), L"BOM", key, value);
    return value;
  }
  std::vector<std::wstring> Column(int col) const {
    std::vector<std::wstring> texts;
    for (int row = 0; row < list->GetItemCount(); ++row) texts.push_back(list->GetItemText(row, col));
    return texts;
  }
  int RowOfModel(const std::wstring& name) const {
    for (int row = 0; row < list->GetItemCount(); ++row) {
      if (list->GetItemText(row, kColModel) == name) return row;
    }
    return -1;
  }
  QPoint CellCenter(int row, int col) const {
    return list->visualRect(list->model()->index(row, col)).center();
  }

  // Right-clicks a row and chooses the context menu entry `text`.
  void ChooseFromMenu(int row, const QString& text) { ::ChooseFromMenu(list, CellCenter(row, 0), text); }

  void RunInListFilter(int columnIndex, bool include, const std::set<std::wstring>& checked) {
    WhenShown<CDlgFilter>([=](CDlgFilter* filter) {
      filter->findChild<QComboBox*>("ModeCombo")->setCurrentIndex(include ? 0 : 1);
      filter->findChild<QComboBox*>("ColumnCombo")->setCurrentIndex(columnIndex);
      auto* values = filter->findChild<CListCtrlEx*>("ValueList");
      for (int row = 0; row < values->GetItemCount(); ++row) {
        values->SetCheck(row, checked.count(values->GetItemText(row, 0)) > 0);
      }
      filter->findChild<QPushButton*>("OkButton")->click();
    });
    ChooseFromMenu(0, "界面中过滤(&F)");
  }

  TestDir dir;
  PluginHost host{dir};
  platform::MessageBoxHandler previous;
  std::vector<std::wstring> prompts;
  std::unique_ptr<CDlgBomShow> dialog;
  CListCtrlEx* list = nullptr;
};

TEST_F(DlgBomShowTest, OpensWithTheSingleLevelListOfTheCurrentAssembly) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), "零件清单显示");
  EXPECT_TRUE(Child<QRadioButton>("LevelSingle")->isChecked());
  EXPECT_FALSE(Child<QCheckBox>("DrawingCheck")->isEnabled());
  EXPECT_EQ(Child<QLineEdit>("FileNameEdit")->text(), "REDUCER_零件明细");
  EXPECT_FALSE(Child<QComboBox>("SortCombo")->isEnabled());
  EXPECT_EQ(Child<QComboBox>("SortCombo")->itemText(0), "模型目录树");
  EXPECT_EQ(Child<QComboBox>("FilterCombo")->currentText(), "全部显示");
  ASSERT_GT(list->GetItemCount(), 5);
  EXPECT_EQ(list->GetItemText(0, kColModel), L"REDUCER");
  EXPECT_EQ(list->GetItemText(0, kColLevel), L"");
  for (int row = 0; row < list->GetItemCount(); ++row) {
    EXPECT_EQ(list->GetItemText(row, kColIndex), std::to_wstring(row + 1));
    EXPECT_TRUE(list->GetCheck(row));
  }
  int bolts = RowOfModel(L"GB5782_M8X30");
  ASSERT_GE(bolts, 0);
  EXPECT_EQ(list->GetItemText(bolts, kColQty), L"8");
  int housing = RowOfModel(L"HOUSING");
  ASSERT_GE(housing, 0);
  EXPECT_EQ(list->GetItemText(housing, kColDrawingNo), L"JSQ-00-001");
  EXPECT_FALSE(list->item(0, 0)->icon().isNull());
  EXPECT_GE(dialog->minimumWidth(), 710);
  EXPECT_GE(dialog->minimumHeight(), 400);
  QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(dialog->frameGeometry().right(), screen.right());
  EXPECT_EQ(dialog->frameGeometry().top(), screen.top());
}

TEST_F(DlgBomShowTest, LevelRadiosReloadStoreTheChoiceAndGateTheSortBox) {
  Open();
  Child<QRadioButton>("LevelMulti")->click();
  EXPECT_EQ(OptValue(L"LevelType"), L"1");
  EXPECT_TRUE(Child<QComboBox>("SortCombo")->isEnabled());
  std::vector<std::wstring> levels = Column(kColLevel);
  ASSERT_GT(levels.size(), 10u);
  EXPECT_EQ(levels[0], L"0");
  EXPECT_EQ(levels[1], L"1");
  EXPECT_TRUE(std::ranges::find(levels, L"3.1") != levels.end());

  Child<QComboBox>("SortCombo")->setCurrentIndex(1);
  Child<QRadioButton>("LevelSummary")->click();
  EXPECT_EQ(OptValue(L"LevelType"), L"2");
  EXPECT_FALSE(Child<QComboBox>("SortCombo")->isEnabled());
  EXPECT_EQ(Child<QComboBox>("SortCombo")->currentIndex(), 1);
  EXPECT_EQ(list->GetItemText(0, kColLevel), L"");
  // Eight bolts on the housing and eight in the two end cap assemblies.
  int bolts = RowOfModel(L"GB5782_M8X30");
  ASSERT_GE(bolts, 0);
  EXPECT_EQ(list->GetItemText(bolts, kColQty), L"16");
}

TEST_F(DlgBomShowTest, SortOnAColumnWithoutParameterWarnsAndKeepsTheList) {
  // Sort entries: 图号, then 层级, which has no parameter.
  CIniEx().SetValue(CCfgOption().GetExcelCfgPath(), L"Show", L"SortCol", L"2,1", L"");
  Open();
  Child<QRadioButton>("LevelMulti")->click();
  std::vector<std::wstring> before = Column(kColModel);
  Child<QComboBox>("SortCombo")->setCurrentIndex(2);
  EXPECT_EQ(prompts, (std::vector<std::wstring>{L"提示:排序参数不能为空"}));
  EXPECT_EQ(Column(kColModel), before);
  EXPECT_EQ(Child<QComboBox>("SortCombo")->currentIndex(), 2);

  Child<QComboBox>("SortCombo")->setCurrentIndex(1);
  EXPECT_EQ(prompts.size(), 1u);
  EXPECT_EQ(Column(kColModel).size(), before.size());
  EXPECT_NE(Column(kColModel), before);
}

TEST_F(DlgBomShowTest, FilterSchemeChangeRecollects) {
  Open();
  ASSERT_GE(RowOfModel(L"GB97_1_8"), 0);
  Child<QComboBox>("FilterCombo")->setCurrentIndex(1);  // 屏蔽标准件
  EXPECT_EQ(RowOfModel(L"GB97_1_8"), -1);
  EXPECT_GE(RowOfModel(L"HOUSING"), 0);
  Child<QComboBox>("FilterCombo")->setCurrentIndex(2);  // 只显示标准件
  EXPECT_GE(RowOfModel(L"GB97_1_8"), 0);
  EXPECT_EQ(RowOfModel(L"HOUSING"), -1);
}

TEST_F(DlgBomShowTest, InListFilterIncludeKeepsTheCheckedValuesAndExcludeTakesThemOut) {
  Open();
  int count = list->GetItemCount();
  std::wstring housingName = list->GetItemText(RowOfModel(L"HOUSING"), kColName);
  RunInListFilter(0, true, {housingName});
  ASSERT_EQ(list->GetItemCount(), 1);
  EXPECT_EQ(list->GetItemText(0, kColModel), L"HOUSING");
  // The number keeps its place in the whole list.
  EXPECT_NE(list->GetItemText(0, kColIndex), L"1");
  Child<QComboBox>("FilterCombo")->setCurrentIndex(1);
  Child<QComboBox>("FilterCombo")->setCurrentIndex(0);
  EXPECT_EQ(list->GetItemCount(), count);

  RunInListFilter(0, false, {housingName});
  EXPECT_EQ(list->GetItemCount(), count - 1);
  EXPECT_EQ(RowOfModel(L"HOUSING"), -1);
}

TEST_F(DlgBomShowTest, CellEditThenSaveWritesAndCreatesParameters) {
  Open();
  int housing = RowOfModel(L"HOUSING");
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, CellCenter(housing, kColDrawingNo));
  auto* field = list->findChild<QTextEdit*>("ListEditField");
  ASSERT_NE(field, nullptr);
  field->selectAll();
  QTest::keyClicks(field, "JSQ-99");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, CellCenter(0, kColIndex));
  EXPECT_EQ(list->GetItemText(housing, kColDrawingNo), L"JSQ-99");

  Child<QPushButton>("SaveParamButton")->click();
  EXPECT_EQ(prompts, (std::vector<std::wstring>{L"提示:参数信息保存完成!"}));
  ProMdl housingMdl = sim::OpenModel(L"housing.prt");
  CTkParam param;
  EXPECT_EQ(param.GetMdlParamValue(housingMdl, L"图号", 2), L"JSQ-99");
  // The top assembly has no 材料: saving creates it from the cell.
  ProMdl top = sim::OpenModel(L"reducer.asm");
  EXPECT_EQ(param.GetMdlParamType(top, L"材料"), CTkParam::kText);
  EXPECT_EQ(list->GetItemText(RowOfModel(L"HOUSING"), kColDrawingNo), L"JSQ-99");
}

TEST_F(DlgBomShowTest, ContextMenuOffersItsEntriesInOrder) {
  Open();
  QStringList entries;
  WhenShown<QMenu>([&](QMenu* menu) {
    for (QAction* action : menu->actions()) {
      if (!action->isSeparator()) entries << action->text();
    }
    menu->close();
  });
  QTest::mouseClick(list->viewport(), Qt::RightButton, {}, CellCenter(1, 0));
  EXPECT_EQ(entries, (QStringList{"打开模型(&O)", "打开同名工程图(&D)", "选中行选择(&S)", "选中行取消(&C)",
                                  "全部选择(&E)", "全部取消(&A)", "界面中过滤(&F)", "元件替换(&R)"}));
}

TEST_F(DlgBomShowTest, ContextMenuChecksAndUnchecksRows) {
  Open();
  ChooseFromMenu(0, "全部取消(&A)");
  for (int row = 0; row < list->GetItemCount(); ++row) EXPECT_FALSE(list->GetCheck(row));
  list->selectRow(2);
  ChooseFromMenu(2, "选中行选择(&S)");
  EXPECT_TRUE(list->GetCheck(2));
  EXPECT_FALSE(list->GetCheck(1));
  ChooseFromMenu(0, "全部选择(&E)");
  list->selectRow(3);
  ChooseFromMenu(3, "选中行取消(&C)");
  EXPECT_FALSE(list->GetCheck(3));
  EXPECT_TRUE(list->GetCheck(4));
}

TEST_F(DlgBomShowTest, ContextMenuOpensTheSelectedModelAndItsDrawing) {
  Open();
  size_t windows = sim::Windows().size();
  list->selectRow(RowOfModel(L"HOUSING"));
  ChooseFromMenu(RowOfModel(L"HOUSING"), "打开模型(&O)");
  ASSERT_EQ(sim::Windows().size(), windows + 1);
  int shaft = RowOfModel(L"OUTPUT_SHAFT_ASM");
  ASSERT_GE(shaft, 0);
  list->selectRow(shaft);
  ChooseFromMenu(shaft, "打开同名工程图(&D)");
  // No drawing of that name: the row is skipped silently.
  EXPECT_EQ(sim::Windows().size(), windows + 1);
  EXPECT_TRUE(prompts.empty());
}

TEST_F(DlgBomShowTest, ReplaceSendsTheHostsCommandAndCloses) {
  Open();
  ChooseFromMenu(1, "元件替换(&R)");
  EXPECT_EQ(sim::Macros().back(), L"~ Command `ProCmdReplace`;");
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(DlgBomShowTest, RowClickSendsTheTreeMacro) {
  Open();
  size_t macros = sim::Macros().size();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, CellCenter(1, kColModel));
  ASSERT_EQ(sim::Macros().size(), macros + 1);
  EXPECT_EQ(sim::Macros().back(),
            L"~ Activate `main_dlg_cur` `user_custom_page_85272048:ProCmdMdlTreeExpandOne`;");
}

TEST_F(DlgBomShowTest, OutputChecksAreWrittenAtEachClick) {
  Open();
  Child<QCheckBox>("ExcelCheck")->click();
  EXPECT_EQ(OptValue(L"ExportExcel"), L"1");
  Child<QCheckBox>("TextCheck")->click();
  EXPECT_EQ(OptValue(L"ExportText"), L"1");
  Child<QCheckBox>("ExcelCheck")->click();
  EXPECT_EQ(OptValue(L"ExportExcel"), L"0");
}

// The spreadsheet's failure is told and the dialog stays: the outputs that
// come later are not written.
TEST_F(DlgBomShowTest, ExportIntoADirectoryThatCannotBeMadeIsToldAndTheDialogStays) {
  Open();
  if (!Child<QCheckBox>("ExcelCheck")->isChecked()) Child<QCheckBox>("ExcelCheck")->click();
  if (!Child<QCheckBox>("TextCheck")->isChecked()) Child<QCheckBox>("TextCheck")->click();
  Child<QLineEdit>("OutDirEdit")->setText(QString::fromStdWString(dir.Wide("missing/deeper/")));
  Child<QLineEdit>("FileNameEdit")->setText("清单");
  Child<QPushButton>("ExportButton")->click();
  ASSERT_EQ(prompts.size(), 1u);
  EXPECT_TRUE(prompts[0].starts_with(L"提示:")) << prompts[0];
  EXPECT_NE(prompts[0].find(dir.Wide("missing/deeper/Excel")), std::wstring::npos) << prompts[0];
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "missing"));
}

TEST_F(DlgBomShowTest, TheListFollowsTheBottomRightCornerWhenResized) {
  Open();
  QRect list0 = list->geometry();
  QRect save0 = Child("SaveParamButton")->geometry();
  dialog->resize(dialog->width() + 100, dialog->height() + 60);
  // The layout follows with the resize event, whenever the loop gets to it.
  EXPECT_TRUE(QTest::qWaitFor([&] { return list->geometry().size() != list0.size(); }, 30000));
  EXPECT_EQ(list->geometry().size(), list0.size() + QSize(100, 60));
  EXPECT_EQ(Child("SaveParamButton")->geometry().topLeft(), save0.topLeft() + QPoint(0, 60));
}

// The worker's component visits are held until the bar has stepped, however
// fast the collection would be.
TEST_F(DlgBomShowTest, LongCollectionMovesTheProgressBar) {
  const std::string visit = "ProSolidFeatVisit";
  struct Release {
    std::string call;
    ~Release() { sim::ReleaseCall(call); }
  } release{visit};
  sim::HoldCall(visit);
  std::set<int> seen;
  QTimer probe;
  QObject::connect(&probe, &QTimer::timeout, [&] {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* load = dynamic_cast<CDlgLoad*>(widget); load && load->isVisible()) {
        seen.insert(load->findChild<QProgressBar*>("LoadProgress")->value());
      }
    }
    if (seen.size() >= 3) sim::ReleaseCall(visit);
  });
  probe.start(20);
  Open();
  probe.stop();
  EXPECT_GE(seen.size(), 3u);
  EXPECT_GE(RowOfModel(L"HOUSING"), 0);
}

TEST_F(DlgBomShowTest, FilterSettingsReloadTheListWithTheEditedScheme) {
  Open();
  ASSERT_GE(RowOfModel(L"GB97_1_8"), 0);
  WhenShown<CDlgBomFilterSet>([](CDlgBomFilterSet* settings) {
    settings->findChild<QLineEdit*>("NameEdit")->setText("无标准件");
    settings->findChild<QLineEdit*>("KeyEdit")->setText("GB");
    settings->findChild<QComboBox*>("ShowCombo")->setCurrentIndex(1);
    settings->findChild<QPushButton*>("ApplyButton")->click();
    settings->findChild<QPushButton*>("CancelButton")->click();
  });
  Child<QPushButton>("FilterSetButton")->click();
  EXPECT_EQ(Child<QComboBox>("FilterCombo")->currentIndex(), 0);
  EXPECT_EQ(Child<QComboBox>("FilterCombo")->currentText(), "无标准件");
  EXPECT_EQ(RowOfModel(L"GB97_1_8"), -1);
  EXPECT_GE(RowOfModel(L"HOUSING"), 0);
}

TEST_F(DlgBomShowTest, DrawingAsCurrentModelListsItsFirstSolid) {
  host.MakeCurrent(sim::OpenModel(L"reducer.drw"));
  Open();
  EXPECT_TRUE(Child<QCheckBox>("DrawingCheck")->isEnabled());
  ASSERT_GT(list->GetItemCount(), 1);
  EXPECT_EQ(list->GetItemText(0, kColModel), L"REDUCER");
}

// The table is filled from the worker's result alone: the UI thread's half
// asks the host nothing.
TEST_F(DlgBomShowTest, FillingTheTableAsksTheHostNothing) {
  Open();
  BomListContents contents;
  std::thread worker([&] { contents = dialog->CollectList(dialog->CurrentRequest(), nullptr); });
  worker.join();
  ASSERT_TRUE(contents.valid);
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  dialog->FillList(contents);
  EXPECT_TRUE(sim::CallLog().empty());
  EXPECT_EQ(list->GetItemCount(), static_cast<int>(contents.table.size()));
}

}  // namespace
