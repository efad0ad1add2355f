#include "DlgParamsSet.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <functional>

#include "CfgOption.h"
#include "DlgToolFilter.h"
#include "HostControl.h"
#include "ITPComboBox.h"
#include "IniEx.h"
#include "Inspection.h"
#include "ListCtrlEx.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "RecordedPrompts.h"
#include "Registration.h"
#include "TkModel.h"
#include "TkParam.h"
#include "WidgetSteps.h"

namespace {

// Model list columns with the reference rows of the test's Params.csv.
constexpr int kColName = 1;
constexpr int kColStatus = 2;
constexpr int kColDrawingNo = 3;
constexpr int kColTitle = 4;
constexpr int kColWeight = 5;
constexpr int kColUnits = 6;
// Model list rows of the current assembly.
constexpr int kRowReducer = 0;
constexpr int kRowShaft = 1;
constexpr int kRowCover = 2;
constexpr int kRowWasher = 3;

const std::wstring kMmKs = L"millimeter Kilogram Sec (mmKs)";
const std::wstring kMmNs = L"millimeter Newton Second (mmNs)";
const std::wstring kIps = L"Inch lbm Second (IPS)";

// The reference attributes; the line of 材料 stops at the comma behind its
// empty value and is skipped.
const char kParamsCsv[] =
    "\xEF\xBB\xBF属性名称,属性类型,参数类型,属性值,指定,说明\n"
    "图号,参数,字符串,X-000,是,图样代号\n"
    "名称,参数,字符串,零件,是,零件名称\n"
    "材料,参数,字符串,,\n"
    "重量,参数,实数,0,否,单件重量\n"
    "单位制,系统单位,字符串,millimeter Kilogram Sec (mmKs),否,主单位\n";

// An assembly with a complete shaft, a cover lacking 图号 and 重量 in inches
// and a standard washer, current in session; the plug-in reads kParamsCsv.
class DlgParamsSetTest : public testing::Test, protected RecordedPrompts {
 protected:
  void SetUp() override {
    dir.Write("session/reducer.asm.1", R"({"type": "assembly",
      "parameters": [{"name": "图号", "type": "string", "value": "R-000"},
                     {"name": "名称", "type": "string", "value": "减速器"}],
      "components": [{"id": 1, "model": "shaft.prt"}, {"id": 2, "model": "cover.prt"},
                     {"id": 3, "model": "gb97_8.prt"}]})");
    dir.Write("session/shaft.prt.1", R"({"type": "part",
      "parameters": [{"name": "图号", "type": "string", "value": "S-001"},
                     {"name": "名称", "type": "string", "value": "轴"},
                     {"name": "重量", "type": "double", "value": 1.25}]})");
    dir.Write("session/cover.prt.1", R"json({"type": "part", "principalUnitSystem": "Inch lbm Second (IPS)",
      "parameters": [{"name": "名称", "type": "string", "value": "盖"}]})json");
    dir.Write("session/gb97_8.prt.1", R"({"type": "part",
      "parameters": [{"name": "名称", "type": "string", "value": "垫圈"}]})");
    dir.Write("session/session.json", R"({"open": ["reducer.asm"], "current": "reducer.asm"})");
    ASSERT_EQ(sim::LoadSession(dir.path() / "session"), PRO_TK_NO_ERROR);
    dir.Write("app/template/Params.csv", kParamsCsv);
  }
  void TearDown() override {
    for (CDlgParamsSet* shown : Dialogs()) delete shown;
  }

  static std::vector<CDlgParamsSet*> Dialogs() {
    std::vector<CDlgParamsSet*> dialogs;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* found = dynamic_cast<CDlgParamsSet*>(widget); found && found->isVisible())
        dialogs.push_back(found);
    }
    return dialogs;
  }
  void Open() {
    ShowParamsSetDlg();
    ASSERT_EQ(Dialogs().size(), 1u);
    dialog = Dialogs()[0];
    refs = Child<CListCtrlEx>("RefList");
    mdls = Child<CListCtrlEx>("MdlList");
  }
  void OpenOnCsv() {
    Open();
    Child<QRadioButton>("RadioCsv")->click();
  }
  template <typename T = QWidget>
  T* Child(const char* name) const {
    return dialog->findChild<T*>(name);
  }
  void Click(const char* name) const { Child<QAbstractButton>(name)->click(); }
  std::wstring Option(const std::wstring& key) const {
    std::wstring value;
    CIniEx().GetValue(CCfgOption().GetParamsCfgPath(), L"ParamsSetDlg", key, value);
    return value;
  }
  static std::vector<std::wstring> Column(const CListCtrlEx* list, int col) {
    std::vector<std::wstring> texts;
    for (int row = 0; row < list->GetItemCount(); ++row) texts.push_back(list->GetItemText(row, col));
    return texts;
  }
  static std::vector<std::wstring> Headers(const CListCtrlEx* list) {
    std::vector<std::wstring> headers;
    for (int col = 0; col < list->columnCount(); ++col)
      headers.push_back(list->horizontalHeaderItem(col)->text().toStdWString());
    return headers;
  }
  static QPoint CellCenter(const CListCtrlEx* list, int row, int col) {
    return list->visualRect(list->model()->index(row, col)).center();
  }
  // Where the list's delegate takes a click as one on the row's check box.
  static QPoint CheckBoxPoint(CListCtrlEx* list, int row) {
    QModelIndex index = list->model()->index(row, 0);
    QStyleOptionViewItem option;
    option.initFrom(list);
    option.rect = list->visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = index.data().toString();
    return list->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list).center();
  }
  // Types `text` into the cell's edit field and ends the edit with a click
  // into the list.
  void EditCell(int row, int col, const QString& text) {
    QTest::mouseDClick(mdls->viewport(), Qt::LeftButton, {}, CellCenter(mdls, row, col));
    auto* field = mdls->findChild<QTextEdit*>("ListEditField");
    ASSERT_TRUE(field && field->isVisible());
    field->setPlainText(text);
    QTest::mouseClick(mdls->viewport(), Qt::LeftButton, {}, CellCenter(mdls, row, 1));
  }
  void ChooseFromMenu(CListCtrlEx* list, int row, const QString& text) {
    ::ChooseFromMenu(list, CellCenter(list, row, 1), text);
  }

  // Control-clicks, as a user marks several rows.
  void SelectRows(CListCtrlEx* list, int first, int last) {
    list->clearSelection();
    for (int row = first; row <= last; ++row)
      QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, CellCenter(list, row, 1));
  }
  ProMdl Model(const std::wstring& fileName) const {
    for (const sim::SessionModel& model : sim::SessionModels()) {
      if (model.fileName.starts_with(fileName)) return model.handle;
    }
    return nullptr;
  }
  std::wstring Principal(const std::wstring& fileName) const {
    ProUnitsystem system{};
    CTkModel().GetPrincipalUnitSystem(Model(fileName), system);
    return system.name;
  }

  TestDir dir;
  PluginHost host{dir};
  CTkParam param;
  CDlgParamsSet* dialog = nullptr;
  CListCtrlEx* refs = nullptr;
  CListCtrlEx* mdls = nullptr;
};

TEST_F(DlgParamsSetTest, ReopeningAfterCsvOpensOnExcel) {
  OpenOnCsv();
  EXPECT_EQ(Option(L"RadioParams"), L"2");
  EXPECT_EQ(refs->GetItemCount(), 4);
  ShowParamsSetDlg();
  ASSERT_EQ(Dialogs().size(), 1u);
  dialog = Dialogs()[0];
  EXPECT_TRUE(Child<QRadioButton>("RadioExcel")->isChecked());
  EXPECT_FALSE(Child<QRadioButton>("RadioCsv")->isChecked());
  EXPECT_FALSE(Child<QPushButton>("RefPathButton")->isEnabled());
  EXPECT_TRUE(Child<QPushButton>("SetButton")->isEnabled());
}

TEST_F(DlgParamsSetTest, AModelSourceWithoutPathOpensEmptyAndCannotSet) {
  CCfgOption().SetRadioParams(1);
  CCfgOption().SetRadioMdl(1);
  Open();
  EXPECT_EQ(dialog->windowTitle(), "参数批量检查");
  EXPECT_TRUE(dialog->windowFlags() & Qt::WindowStaysOnTopHint);
  EXPECT_TRUE(Child<QRadioButton>("RadioMdl")->isChecked());
  EXPECT_TRUE(Child<QPushButton>("RefPathButton")->isEnabled());
  EXPECT_EQ(refs->GetItemCount(), 0);
  EXPECT_FALSE(Child<QPushButton>("SetButton")->isEnabled());
  EXPECT_TRUE(Child<QRadioButton>("RadioSessionMdl")->isChecked());
  EXPECT_TRUE(Child<QCheckBox>("CheckCurPath")->isEnabled());
  EXPECT_EQ(Child<QLineEdit>("DirEdit")->text().toStdWString(), CTkFile().GetCurDir());
  EXPECT_EQ(Child<QPushButton>("FilterButton")->text(), "过滤方案: ");
  EXPECT_FALSE(Child<QPushButton>("CreateButton")->isVisible());
  EXPECT_EQ(Headers(mdls), (std::vector<std::wstring>{L"序号", L"模型名称", L"状态"}));
  EXPECT_EQ(mdls->GetItemCount(), 4) << "the session's models";
  EXPECT_EQ(dialog->minimumSize(), dialog->size());
  EXPECT_EQ(dialog->maximumHeight(), dialog->height());
  EXPECT_GT(dialog->maximumWidth(), dialog->width());
  QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(dialog->frameGeometry().right(), screen.right());
  EXPECT_EQ(dialog->frameGeometry().top(), screen.top());

  Click("RadioCurMdl");
  EXPECT_EQ(Option(L"RadioMdl"), L"0");
  EXPECT_FALSE(Child<QCheckBox>("CheckCurPath")->isEnabled());
  EXPECT_FALSE(Child<QPushButton>("DirButton")->isEnabled());
}

TEST_F(DlgParamsSetTest, TheCsvChecksEachModelOfTheCurrentAssembly) {
  OpenOnCsv();
  EXPECT_EQ(Column(refs, 1), (std::vector<std::wstring>{L"图号", L"名称", L"重量", L"单位制"}));
  EXPECT_EQ(Column(refs, 0), (std::vector<std::wstring>{L"01", L"02", L"03", L"04"}));
  EXPECT_EQ(refs->GetItemText(2, 3), L"实数");
  EXPECT_EQ(refs->GetItemText(0, 5), L"是");
  EXPECT_EQ(refs->GetItemText(3, 6), L"主单位");
  for (int row = 0; row < refs->GetItemCount(); ++row) EXPECT_TRUE(refs->GetCheck(row));

  EXPECT_EQ(Headers(mdls),
            (std::vector<std::wstring>{L"序号", L"模型名称", L"状态", L"图号", L"名称", L"重量", L"单位制"}));
  EXPECT_EQ(Column(mdls, kColName), (std::vector<std::wstring>{L"REDUCER", L"SHAFT", L"COVER", L"GB97_8"}));
  EXPECT_EQ(Column(mdls, kColStatus),
            (std::vector<std::wstring>{L"重量不存在; ", L"参数存在", L"图号不存在; 重量不存在; ",
                                       L"图号不存在; 重量不存在; "}));
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColDrawingNo), L"S-001");
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColWeight), L"1.25");
  // A missing parameter shows the reference value beside its status.
  EXPECT_EQ(mdls->GetItemText(kRowCover, kColDrawingNo), L"X-000");
  EXPECT_EQ(mdls->GetItemText(kRowCover, kColUnits), kIps);
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColUnits), kMmNs);
  for (int row = 0; row < mdls->GetItemCount(); ++row) EXPECT_TRUE(mdls->GetCheck(row));
  EXPECT_FALSE(mdls->item(kRowReducer, 0)->icon().isNull());
}

TEST_F(DlgParamsSetTest, AnUncheckedModelStaysBlankOnlyWhileTheModelCountHolds) {
  OpenOnCsv();
  mdls->SetCheck(kRowShaft, false);
  Click("CheckButton");
  EXPECT_FALSE(mdls->GetCheck(kRowShaft));
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColStatus), L"");
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColDrawingNo), L"S-001");
  EXPECT_EQ(mdls->GetItemText(kRowCover, kColStatus), L"图号不存在; 重量不存在; ");

  // The session holds one model more than the assembly.
  param.CreateMdlParam(Model(L"shaft.prt"), L"备注", CTkParam::kText, L"");
  sim::AddModel(L"spare.prt", {});
  Click("RadioSessionMdl");
  EXPECT_EQ(mdls->GetItemCount(), 5);
  for (int row = 0; row < mdls->GetItemCount(); ++row) {
    EXPECT_TRUE(mdls->GetCheck(row)) << row;
    EXPECT_FALSE(mdls->GetItemText(row, kColStatus).empty()) << row;
  }
}

TEST_F(DlgParamsSetTest, SettingWritesTheCorrectedCellsCreatesWhatIsMissingAndSetsTheUnitSystem) {
  OpenOnCsv();
  EditCell(kRowShaft, kColTitle, "主轴");
  // The unit system's drop-down offers the first model's systems.
  QTest::mouseDClick(mdls->viewport(), Qt::LeftButton, {}, CellCenter(mdls, kRowCover, kColUnits));
  auto* box = mdls->findChild<CITPComboBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->count(), 6);
  EXPECT_EQ(box->currentText().toStdWString(), kIps);
  box->setCurrentText(QString::fromStdWString(kMmKs));
  QFocusEvent focusOut(QEvent::FocusOut, Qt::MouseFocusReason);
  QApplication::sendEvent(box, &focusOut);
  mdls->SetCheck(kRowReducer, false);

  Click("SetButton");
  EXPECT_EQ(prompts, (std::vector<std::wstring>{L"提示:设置参数完成!"}));
  ProMdl shaft = Model(L"shaft.prt");
  ProMdl cover = Model(L"cover.prt");
  EXPECT_EQ(param.GetMdlParamValue(shaft, L"名称", 2), L"主轴");
  EXPECT_EQ(param.GetMdlParamValue(cover, L"图号", 2), L"X-000");
  EXPECT_EQ(param.GetMdlParamType(cover, L"重量"), CTkParam::kDouble);
  EXPECT_EQ(param.GetMdlParamDescription(cover, L"图号"), L"图样代号");
  int designated = 0;
  param.GetMdlParamDesignated(cover, L"图号", designated);
  EXPECT_EQ(designated, 1);
  EXPECT_EQ(Principal(L"cover.prt"), kMmKs);
  EXPECT_EQ(Principal(L"shaft.prt"), kMmNs);
  EXPECT_EQ(param.GetMdlParamType(Model(L"reducer.asm"), L"重量"), CTkParam::kNoValue) << "unchecked";
  // The list is read again: the counts held, so the unchecked row stays so.
  EXPECT_EQ(mdls->GetItemText(kRowCover, kColStatus), L"参数存在");
  EXPECT_EQ(mdls->GetItemText(kRowReducer, kColStatus), L"");
}

// The hidden "创建参数" adds what is missing, empty, and leaves the rest.
TEST_F(DlgParamsSetTest, CreatingAddsOnlyMissingParametersWithoutValues) {
  OpenOnCsv();
  EditCell(kRowShaft, kColTitle, "主轴");
  mdls->SetItemText(kRowCover, kColUnits, kMmKs);
  Click("CreateButton");
  EXPECT_EQ(prompts, (std::vector<std::wstring>{L"提示:设置参数完成!"}));
  EXPECT_EQ(param.GetMdlParamValue(Model(L"shaft.prt"), L"名称", 2), L"轴");
  EXPECT_EQ(param.GetMdlParamType(Model(L"cover.prt"), L"图号"), CTkParam::kText);
  EXPECT_EQ(param.GetMdlParamValue(Model(L"cover.prt"), L"图号", 2), L"");
  EXPECT_EQ(param.GetMdlParamValue(Model(L"cover.prt"), L"重量", 2), L"0.00");
  EXPECT_EQ(Principal(L"cover.prt"), kIps);
  EXPECT_EQ(mdls->GetItemText(kRowCover, kColStatus), L"参数存在");
}

TEST_F(DlgParamsSetTest, UsingTheReferenceShowsAndWritesItOverExistingValues) {
  OpenOnCsv();
  Click("CheckDefValue");
  EXPECT_EQ(Option(L"CheckDefValue"), L"1");
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColDrawingNo), L"X-000");
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColWeight), L"0");
  EXPECT_EQ(mdls->GetItemText(kRowCover, kColUnits), kMmKs);
  Click("SetButton");
  EXPECT_EQ(param.GetMdlParamValue(Model(L"shaft.prt"), L"图号", 2), L"X-000");
  EXPECT_EQ(param.GetMdlParamValue(Model(L"shaft.prt"), L"重量", 2), L"0.00");
  EXPECT_EQ(Principal(L"cover.prt"), kMmKs);
  EXPECT_EQ(Principal(L"reducer.asm"), kMmKs);
}

TEST_F(DlgParamsSetTest, ALoneUnitSystemRowSetsNothingAndSaysNothing) {
  OpenOnCsv();
  SelectRows(refs, 0, 2);
  ChooseFromMenu(refs, 1, "取消");
  EXPECT_EQ(Headers(mdls), (std::vector<std::wstring>{L"序号", L"模型名称", L"状态", L"单位制"}));
  EXPECT_EQ(Column(mdls, kColStatus)[kRowCover], L"参数存在");
  mdls->SetItemText(kRowCover, kColDrawingNo, kMmKs);
  Click("SetButton");
  EXPECT_TRUE(prompts.empty());
  EXPECT_EQ(Principal(L"cover.prt"), kIps);
}

// Only the attributes' positions count: behind a unit system the last
// parameter's column cannot be edited, and the first column can.
TEST_F(DlgParamsSetTest, AUnitSystemInFrontShiftsTheEditableColumns) {
  dir.Write("app/template/Params.csv",
            "属性名称,属性类型,参数类型,属性值,指定\n单位制,系统单位,字符串,,否\n图号,参数,字符串,,是\n"
            "名称,参数,字符串,,是\n");
  OpenOnCsv();
  auto fieldOpensAt = [this](int col) {
    QTest::mouseDClick(mdls->viewport(), Qt::LeftButton, {}, CellCenter(mdls, kRowShaft, col));
    auto* field = mdls->findChild<QTextEdit*>("ListEditField");
    bool open = field && field->isVisible() && mdls->EditCol() == col;
    QTest::mouseClick(mdls->viewport(), Qt::LeftButton, {}, CellCenter(mdls, kRowShaft, kColName));
    return open;
  };
  EXPECT_TRUE(fieldOpensAt(0));
  EXPECT_TRUE(fieldOpensAt(kColTitle));
  EXPECT_FALSE(fieldOpensAt(kColWeight));
}

TEST_F(DlgParamsSetTest, AClickOnAReferenceCheckBoxRebuildsTheColumnsAHundredMillisecondsLater) {
  OpenOnCsv();
  QTest::mouseClick(refs->viewport(), Qt::LeftButton, {}, CheckBoxPoint(refs, 2));
  EXPECT_FALSE(refs->GetCheck(2));
  EXPECT_EQ(mdls->columnCount(), 7) << "not yet";
  QElapsedTimer waited;
  waited.start();
  while (mdls->columnCount() == 7 && waited.elapsed() < 2000) QTest::qWait(10);
  EXPECT_GE(waited.elapsed(), 90);
  EXPECT_EQ(Headers(mdls),
            (std::vector<std::wstring>{L"序号", L"模型名称", L"状态", L"图号", L"名称", L"单位制"}));
  EXPECT_EQ(mdls->GetItemText(kRowShaft, kColStatus), L"参数存在");
}

TEST_F(DlgParamsSetTest, EditingTheCsvEmptiesTheReferenceListUntilTheRadioIsClickedAgain) {
  OpenOnCsv();
  Click("EditSourceButton");
  ASSERT_EQ(opened.size(), 1u);
  EXPECT_TRUE(opened[0].ends_with(L"\\\\template\\Params.csv")) << "the doubled separator stays";
  EXPECT_EQ(refs->GetItemCount(), 0);
  EXPECT_EQ(mdls->columnCount(), 7);
  Click("RadioCsv");
  EXPECT_EQ(refs->GetItemCount(), 4);
}

TEST_F(DlgParamsSetTest, AReferenceModelGivesItsParametersWithAFixedKind) {
  CCfgOption().SetRadioParams(1);
  Open();
  sim::PushAnswer("ProFileMdlfiletypeOpen", dir.Wide("session/missing.prt.1"));
  Click("RefPathButton");
  EXPECT_EQ(prompts, (std::vector<std::wstring>{L"提示:模型文件不存在"}));
  EXPECT_EQ(refs->GetItemCount(), 0);

  sim::PushAnswer("ProFileMdlfiletypeOpen", dir.Wide("session/shaft.prt.1"));
  Click("RefPathButton");
  EXPECT_EQ(Child<QLineEdit>("RefPathEdit")->text().toStdWString(), dir.Wide("session/shaft.prt.1"));
  EXPECT_EQ(Column(refs, 1), (std::vector<std::wstring>{L"图号", L"名称", L"重量"}));
  EXPECT_EQ(Column(refs, 2), (std::vector<std::wstring>{L"参数", L"参数", L"参数"}));
  EXPECT_TRUE(Child<QPushButton>("SetButton")->isEnabled());
  EXPECT_EQ(mdls->columnCount(), 6);
  QTest::mouseDClick(refs->viewport(), Qt::LeftButton, {}, CellCenter(refs, 0, 2));
  EXPECT_EQ(refs->findChild<CITPComboBox*>(), nullptr) << "no kind to choose from a model";
  QTest::mouseDClick(refs->viewport(), Qt::LeftButton, {}, CellCenter(refs, 0, 3));
  EXPECT_NE(refs->findChild<CITPComboBox*>(), nullptr);

  // Back to a model source: the rows of the CSV stay until a model is chosen.
  Click("RadioCsv");
  Click("RadioMdl");
  EXPECT_EQ(refs->GetItemCount(), 4);
}

TEST_F(DlgParamsSetTest, OpenModelFromTheMenuOpensTheSelectedRowsLastFirst) {
  OpenOnCsv();
  SelectRows(mdls, kRowShaft, kRowCover);
  size_t windowsBefore = sim::Windows().size();
  ChooseFromMenu(mdls, kRowShaft, "打开模型(&O)");
  std::vector<sim::WindowInfo> windows = sim::Windows();
  ASSERT_EQ(windows.size(), windowsBefore + 2);
  EXPECT_EQ(windows[windowsBefore].model, Model(L"cover.prt"));
  EXPECT_EQ(windows[windowsBefore + 1].model, Model(L"shaft.prt"));

  ChooseFromMenu(mdls, kRowCover, "取消(&U)");
  EXPECT_TRUE(mdls->GetCheck(kRowReducer));
  EXPECT_FALSE(mdls->GetCheck(kRowShaft));
  EXPECT_FALSE(mdls->GetCheck(kRowCover));
}

TEST_F(DlgParamsSetTest, FilterSettingsEndTheDialogAndOpenAFreshOne) {
  OpenOnCsv();
  CDlgParamsSet* first = dialog;
  WhenShown<CDlgToolFilter>([](CDlgToolFilter* filter) {
    filter->findChild<QComboBox*>("SchemeCombo")->setCurrentIndex(2);  // 只显示标准件
    filter->findChild<QPushButton*>("OkButton")->click();
  });
  Click("FilterButton");
  ASSERT_EQ(Dialogs().size(), 1u);
  dialog = Dialogs()[0];
  EXPECT_NE(dialog, first);
  EXPECT_EQ(Child<QPushButton>("FilterButton")->text(), "过滤方案: 只显示标准件");
  EXPECT_TRUE(Child<QRadioButton>("RadioExcel")->isChecked());
  EXPECT_EQ(Column(Child<CListCtrlEx>("MdlList"), kColName), (std::vector<std::wstring>{L"GB97_8"}));
}

TEST_F(DlgParamsSetTest, EachCommandReplacesTheOpenDialog) {
  AutoSaveStarted = 1;  // the timers are not under test here
  user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(sim::RunAction("CmdParamsSetId"));
  ASSERT_EQ(Dialogs().size(), 1u);
  CDlgParamsSet* first = Dialogs()[0];
  ASSERT_TRUE(sim::RunAction("CmdParamsSet2Id"));
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_NE(Dialogs()[0], first);
}

}  // namespace
