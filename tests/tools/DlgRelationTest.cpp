#include "DlgRelation.h"

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

#include <deque>
#include <filesystem>
#include <memory>

#include "CfgOption.h"
#include "DlgRelName.h"
#include "FaultInjection.h"
#include "HostControl.h"
#include "Inspection.h"
#include "ListCtrlEx.h"
#include "RecordedPrompts.h"
#include "ModelDef.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "TkModel.h"
#include "TkRelation.h"
#include "WidgetSteps.h"

namespace {

using Lines = std::vector<std::wstring>;

constexpr int kColName = 1;

// An assembly holding the gear twice and the shaft once, current in
// session, each model with relations of its own and the first gear
// occurrence with a component relation. Message prompts are recorded; a
// question takes the next queued answer, no when none is queued.
class DlgRelationTest : public testing::Test, protected RecordedPrompts {
 protected:
  void SetUp() override {
    sim::ModelDef gear;
    gear.relations = {L"D = M * Z"};
    sim::AddModel(L"gear.prt", gear);
    sim::ModelDef shaft;
    shaft.commonName = L"输出轴";
    sim::AddModel(L"shaft.prt", shaft);
    sim::ModelDef box;
    box.type = PRO_MDL_ASSEMBLY;
    box.relations = {L"L = 100"};
    box.components = {{1, L"gear.prt"}, {2, L"gear.prt"}, {3, L"shaft.prt"}};
    box.components[0].relations = {L"X = 1"};
    assembly = sim::AddModel(L"gearbox.asm", box);
    host.MakeCurrent(assembly);
    std::filesystem::remove_all(Store());
    std::filesystem::create_directories(Store());
  }
  void TearDown() override { dialog.reset(); }

  void Open() {
    dialog = std::make_unique<CDlgRelation>();
    dialog->OnInitDialog();
    dialog->show();
    list = dialog->findChild<CListCtrlEx*>("MdlList");
    editor = dialog->findChild<QTextEdit*>("RelationEdit");
  }
  template <typename T = QPushButton>
  T* Child(const char* name) const {
    return dialog->findChild<T*>(name);
  }
  void Click(const char* name) const { Child<QAbstractButton>(name)->click(); }
  void Write(const char* button, const std::wstring& text) const {
    editor->setPlainText(QString::fromStdWString(text));
    Click(button);
  }
  int Row(const std::wstring& name) const {
    for (int row = 0; row < list->GetItemCount(); ++row) {
      if (list->GetItemText(row, kColName) == name) return row;
    }
    return -1;
  }
  // Only the named models stay checked.
  void CheckOnly(const Lines& names) const {
    for (int row = 0; row < list->GetItemCount(); ++row)
      list->SetCheck(row, std::ranges::find(names, list->GetItemText(row, kColName)) != names.end());
  }

  Lines MdlRelations(const std::wstring& fileName) const {
    ProMdl mdl = sim::OpenModel(fileName);
    ProRelset set{};
    Lines lines;
    EXPECT_EQ(relation.GetMdlRelset(mdl, set), 0);
    EXPECT_EQ(relation.GetRelationLines(set, lines), 0);
    return lines;
  }
  // The relations of each component occurrence of the assembly, in order.
  std::vector<Lines> CmpRelations() const {
    std::vector<TkModelAsmCmp> cmps;
    CTkModel().GetAllComponent2(assembly, cmps);
    std::vector<Lines> all;
    for (TkModelAsmCmp& cmp : cmps) {
      ProRelset set{};
      Lines lines;
      EXPECT_EQ(relation.GetItemRelset(cmp.feature, set), 0);
      relation.GetRelationLines(set, lines);
      all.push_back(lines);
    }
    return all;
  }
  Lines Messages() const { return sim::Messages().lines; }

  std::filesystem::path Store() const { return std::filesystem::path(host.TextRoot()) / "Relation"; }
  std::string StoreFile(const std::string& name) const {
    return dir.Read((Store() / name).lexically_relative(dir.path()).string());
  }
  void PutStore(const std::string& name, const std::string& bytes) const {
    dir.Write((Store() / name).lexically_relative(dir.path()).string(), bytes);
  }
  Lines Names() const {
    auto* combo = Child<QComboBox>("NameCombo");
    Lines names;
    for (int i = 0; i < combo->count(); ++i) names.push_back(combo->itemText(i).toStdWString());
    return names;
  }

  TestDir dir;
  PluginHost host{dir};
  ProMdl assembly = nullptr;
  CTkRelation relation;
  CCfgOption option;
  std::unique_ptr<CDlgRelation> dialog;
  CListCtrlEx* list = nullptr;
  QTextEdit* editor = nullptr;
};

TEST_F(DlgRelationTest, OpensOnTheStoredChoicesWithEveryModelChecked) {
  option.SetRadioParams(1);
  option.SetRadioMdl(7);
  Open();
  EXPECT_EQ(dialog->windowTitle(), "关系批量工具");
  EXPECT_TRUE(dialog->windowFlags() & Qt::WindowStaysOnTopHint);
  EXPECT_TRUE(Child<QRadioButton>("RadioSourceMdl")->isChecked());
  EXPECT_TRUE(Child<QRadioButton>("RadioCurMdl")->isChecked()) << "a value out of range opens on the first";
  EXPECT_TRUE(Child<QRadioButton>("RadioMdlRelation")->isChecked());
  EXPECT_TRUE(Child("EditMdlButton")->isEnabled());
  EXPECT_FALSE(Child("SaveRelationButton")->isEnabled());
  EXPECT_FALSE(Child<QComboBox>("NameCombo")->isEnabled());
  EXPECT_FALSE(Child<QWidget>("CheckCurPath")->isEnabled());
  EXPECT_EQ(Child("FilterButton")->text(), "过滤方案: ");
  ASSERT_EQ(list->GetItemCount(), 3);
  EXPECT_EQ(list->GetItemText(0, 0), L"001");
  EXPECT_EQ(list->GetItemText(0, kColName), L"GEARBOX");
  EXPECT_EQ(list->GetItemText(Row(L"SHAFT"), 2), L"输出轴");
  for (int row = 0; row < 3; ++row) EXPECT_TRUE(list->GetCheck(row));
}

TEST_F(DlgRelationTest, SourceAndScopeClicksAreSharedWithTheParameterCheck) {
  Open();
  Click("RadioSourceMdl");
  Click("RadioSessionMdl");
  EXPECT_EQ(option.GetRadioParams(), 1);
  EXPECT_EQ(option.GetRadioMdl(), 1);
  EXPECT_TRUE(Child<QWidget>("CheckCurPath")->isEnabled());
  EXPECT_TRUE(Child("DirButton")->isEnabled());
  Click("RadioSourceStore");
  EXPECT_EQ(option.GetRadioParams(), 0);
}

TEST_F(DlgRelationTest, AddingTwiceToAModelChangesNothingTheSecondTime) {
  Open();
  CheckOnly({L"GEAR"});
  Write("AddButton", L"da = d + 2*m");
  Lines added{L"D = M * Z", L"", L"DA = D + 2*M"};
  EXPECT_EQ(MdlRelations(L"gear.prt"), added);
  EXPECT_EQ(Messages(), Lines{L"set relation to mdl OK: GEAR"});
  Click("AddButton");
  EXPECT_EQ(MdlRelations(L"gear.prt"), added);
  EXPECT_EQ(Messages().size(), 1u) << "a model with every block present gets no line";
  EXPECT_EQ(MdlRelations(L"gearbox.asm"), Lines{L"L = 100"}) << "unchecked";
}

TEST_F(DlgRelationTest, AddingTwiceToAComponentEmptiesItsRelationsTheSecondTime) {
  Open();
  Click("RadioCmpRelation");
  Write("AddButton", L"x = 1");
  // The first gear held the block already: its set is emptied at once.
  EXPECT_EQ(CmpRelations(), (std::vector<Lines>{{}, {L"", L"X = 1"}, {L"", L"X = 1"}}));
  EXPECT_EQ(Messages(), (Lines{L"set relation to mdl OK: GEAR", L"set relation to mdl OK: GEAR",
                               L"set relation to mdl OK: SHAFT"}))
      << "the assembly itself is no component and gets no line";
  // Each occurrence flips: the emptied one gets the block again, the others
  // lose everything.
  Click("AddButton");
  EXPECT_EQ(CmpRelations(), (std::vector<Lines>{{L"", L"X = 1"}, {}, {}}));
  EXPECT_EQ(MdlRelations(L"gear.prt"), Lines{L"D = M * Z"}) << "model relations stay";
}

TEST_F(DlgRelationTest, ATwoLineBlockIsDeletedWhateverItsBlanksAndCase) {
  ProMdl gear = sim::OpenModel(L"gear.prt");
  ProRelset set{};
  relation.GetMdlRelset(gear, set);
  relation.SetRelationLines(set, {L"D = M * Z", L"", L"da = d + 2 * m", L"df = d - 2.5 * m", L"", L"B = 20"});
  Open();
  CheckOnly({L"GEAR"});
  Write("DeleteButton", L"DA=D+2*M");
  EXPECT_EQ(MdlRelations(L"gear.prt"),
            (Lines{L"D = M * Z", L"", L"", L"DA = D + 2 * M", L"DF = D - 2.5 * M", L"", L"", L"B = 20", L""}))
      << "one line of the block is no block: nothing goes, and the gaps widen";
  Write("DeleteButton", L"  da = D + 2*M\r\n\tDF = d-2.5*m \r\n");
  EXPECT_EQ(MdlRelations(L"gear.prt"),
            (Lines{L"D = M * Z", L"", L"", L"", L"", L"", L"", L"B = 20", L"", L""}));
  EXPECT_EQ(Messages(), (Lines{L"delete relation to mdl OK: GEAR", L"delete relation to mdl OK: GEAR"}));
}

TEST_F(DlgRelationTest, ClearingReportsTheSetLineForModelsAndComponents) {
  Open();
  editor->setPlainText("ignored = 1");
  CheckOnly({L"GEARBOX", L"GEAR"});
  Click("ClearButton");
  EXPECT_EQ(MdlRelations(L"gearbox.asm"), Lines{});
  EXPECT_EQ(MdlRelations(L"gear.prt"), Lines{});
  EXPECT_EQ(Messages(), (Lines{L"set relation to mdl OK: GEARBOX", L"set relation to mdl OK: GEAR"}));
  Click("RadioCmpRelation");
  Click("ClearButton");
  EXPECT_EQ(CmpRelations(), (std::vector<Lines>{{}, {}, {}}));
  EXPECT_EQ(Messages().size(), 4u) << "two gear occurrences; the assembly is none";
}

TEST_F(DlgRelationTest, ARelationTheHostRefusesIsReportedAndTheModelStaysAsItWas) {
  Open();
  CheckOnly({L"GEAR", L"SHAFT"});
  std::optional<std::string> before = sim::ModelState(sim::OpenModel(L"gear.prt"));
  Write("OverwriteButton", L"D = (M * Z");
  EXPECT_EQ(sim::ModelState(sim::OpenModel(L"gear.prt")), before);
  EXPECT_EQ(Messages(), (Lines{L"can not set relation to mdl: GEAR  PRO_TK_GENERAL_ERROR",
                               L"can not set relation to mdl: SHAFT  PRO_TK_GENERAL_ERROR"}))
      << "the tool goes on after a failure";
  Write("AddButton", L"E = )");
  EXPECT_EQ(Messages().back(), L"can not set relation to mdl: SHAFT  PRO_TK_GENERAL_ERROR");
  EXPECT_EQ(sim::ModelState(sim::OpenModel(L"gear.prt")), before);
  EXPECT_TRUE(prompts.empty()) << "no message box comes up";
}

TEST_F(DlgRelationTest, FailuresOfTheHostInADeleteAndWithoutASetAreReported) {
  Open();
  CheckOnly({L"GEAR"});
  sim::FailCall("ProRelsetRelationsSet", PRO_TK_CANT_WRITE, sim::Times::Once);
  Write("DeleteButton", L"D = M * Z");
  EXPECT_EQ(MdlRelations(L"gear.prt"), Lines{L"D = M * Z"});
  sim::FailCall("ProModelitemToRelset", PRO_TK_BAD_CONTEXT, sim::Times::Once);
  Click("DeleteButton");
  EXPECT_EQ(Messages(), (Lines{L"can not delete relation to mdl: GEAR  PRO_TK_CANT_WRITE",
                               L"can not get relation set from mdl: GEAR  PRO_TK_BAD_CONTEXT"}));
}

TEST_F(DlgRelationTest, AModelSourceShowsItsRelationsOrSaysWhyNot) {
  option.SetRadioParams(1);
  Open();
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"gearbox.asm");
  Click("MdlPathButton");
  EXPECT_EQ(editor->toPlainText(), "L = 100");
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"missing.prt");
  Click("MdlPathButton");
  EXPECT_EQ(editor->toPlainText(), "");
  EXPECT_EQ(prompts, Lines{L"提示:无法加载missing.prt"});
}

TEST_F(DlgRelationTest, EditingAModelNeedsAPathAndOpensItsWindow) {
  option.SetRadioParams(1);
  Open();
  Click("EditMdlButton");
  EXPECT_EQ(prompts, Lines{L"提示:模型路径不能为空!"});
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"shaft.prt");
  Click("MdlPathButton");
  Click("EditMdlButton");
  std::vector<sim::WindowInfo> windows = sim::Windows();
  EXPECT_TRUE(std::ranges::any_of(windows, [](const sim::WindowInfo& window) {
    return window.id != 0 && window.model == sim::OpenModel(L"shaft.prt");
  }));
}

TEST_F(DlgRelationTest, WithoutACurrentModelComponentWritesFindNothing) {
  host.MakeCurrent(nullptr);
  Open();
  Click("RadioSessionMdl");
  ASSERT_EQ(list->GetItemCount(), 3);
  Click("RadioCmpRelation");
  Write("OverwriteButton", L"X = 2");
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(CmpRelations()[0], Lines{L"X = 1"});
}

TEST_F(DlgRelationTest, WideningMovesTheRightButtonsAndStretchesTheTextOnly) {
  Open();
  auto* names = Child<QListWidget>("NameList");
  QRect editorBefore = editor->geometry();
  QRect namesBefore = names->geometry();
  QRect saveBefore = Child("SaveRelationButton")->geometry();
  QRect addBefore = Child("AddButton")->geometry();
  QRect listBefore = list->geometry();
  dialog->resize(dialog->width() + 100, dialog->height() + 40);
  EXPECT_EQ(editor->geometry(), editorBefore.adjusted(0, 0, 100, 0));
  EXPECT_EQ(names->geometry(), namesBefore);
  EXPECT_EQ(Child("SaveRelationButton")->geometry(), saveBefore.translated(100, 0));
  EXPECT_EQ(Child("AddButton")->geometry(), addBefore.translated(0, 40));
  EXPECT_EQ(list->geometry(), listBefore.adjusted(0, 0, 100, 40));
}

TEST_F(DlgRelationTest, SavingToAStoredRelationReplacesItsTextAfterTheQuestion) {
  PutStore("gear.txt", "D = M * Z\n");
  PutStore("bolt.txt", "NAME = \"M\" + D\n");
  Open();
  EXPECT_EQ(Names(), (Lines{L"bolt", L"gear"}));
  EXPECT_EQ(editor->toPlainText(), "NAME = \"M\" + D\n") << "the first name loads";
  Child<QComboBox>("NameCombo")->setCurrentIndex(1);
  emit Child<QComboBox>("NameCombo")->activated(1);
  EXPECT_EQ(editor->toPlainText(), "D = M * Z\n");
  editor->clear();
  Click("SaveRelationButton");
  EXPECT_EQ(StoreFile("gear.txt"), "D = M * Z\n") << "answered no";
  answers = {true};
  Click("SaveRelationButton");
  EXPECT_EQ(StoreFile("gear.txt"), "");
  EXPECT_EQ(prompts, (Lines{L"提示:确实保存当前关系式到gear?", L"提示:确实保存当前关系式到gear?",
                            L"提示:保存关系式成功!"}));
}

TEST_F(DlgRelationTest, ADoubleClickedNameAppendsItsTextBehindALineFeed) {
  PutStore("gear.txt", "D = M * Z");
  Open();
  editor->clear();
  auto* names = Child<QListWidget>("NameList");
  ASSERT_EQ(names->count(), 1);
  QRect rect = names->visualItemRect(names->item(0));
  QTest::mouseClick(names->viewport(), Qt::LeftButton, {}, rect.center());
  QTest::mouseDClick(names->viewport(), Qt::LeftButton, {}, rect.center());
  EXPECT_EQ(editor->toPlainText(), "\nD = M * Z\n");
}

// The name box asks again after a refused name, holding it as it was typed.
TEST_F(DlgRelationTest, ANewNameIsRefusedInAnyCaseAndStoredInUpperCase) {
  PutStore("gear.txt", "D = M * Z\n");
  Open();
  editor->setPlainText("M = 2");
  std::deque<std::wstring> typed{L"Gear", L"bolt"};
  std::vector<std::wstring> shown;
  std::function<void(CDlgRelName*)> answer = [&](CDlgRelName* nameDlg) {
    auto* edit = nameDlg->findChild<QLineEdit*>("NameEdit");
    shown.push_back(edit->text().toStdWString());
    edit->setText(QString::fromStdWString(typed.front()));
    typed.pop_front();
    if (!typed.empty()) WhenShown<CDlgRelName>(answer);
    nameDlg->findChild<QPushButton*>("OkButton")->click();
  };
  WhenShown<CDlgRelName>(answer);
  Click("NewRelationButton");
  EXPECT_EQ(shown, (Lines{L"", L"Gear"}));
  EXPECT_EQ(prompts, (Lines{L"提示:该关系式名称已存在, 请重新输入", L"提示:新增常用关系成功"}));
  EXPECT_EQ(Names(), (Lines{L"BOLT", L"gear"}));
  EXPECT_EQ(StoreFile("BOLT.txt"), "M = 2");
  EXPECT_EQ(Child<QComboBox>("NameCombo")->currentIndex(), 0);
  EXPECT_EQ(editor->toPlainText(), "M = 2") << "the editor keeps its text";
}

TEST_F(DlgRelationTest, DeletingAStoredRelationAsksFirst) {
  PutStore("gear.txt", "D = M * Z\n");
  PutStore("bolt.txt", "X = 1\n");
  Open();
  Click("DeleteRelationButton");
  EXPECT_EQ(Names(), (Lines{L"bolt", L"gear"}));
  answers = {true};
  Click("DeleteRelationButton");
  EXPECT_EQ(Names(), Lines{L"gear"});
  EXPECT_FALSE(std::filesystem::exists(Store() / "bolt.txt"));
  EXPECT_EQ(editor->toPlainText(), "X = 1\n") << "the editor keeps its text";
}

TEST_F(DlgRelationTest, SavingCheckedModelsWritesTheirFiles) {
  Open();
  CheckOnly({L"SHAFT"});
  Click("SaveMdlsButton");
  EXPECT_TRUE(std::filesystem::exists(host.WorkDir() / "shaft.prt.1"));
  EXPECT_FALSE(std::filesystem::exists(host.WorkDir() / "gear.prt.1"));
  EXPECT_FALSE(std::filesystem::exists(host.WorkDir() / "gearbox.asm.1"));
}

TEST_F(DlgRelationTest, TheCommandsOpenOneDialogAtATime) {
  user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(sim::RunAction("CmdIdRelationMenuBtn"));
  ASSERT_TRUE(sim::RunAction("CmdIdRelationMenuBtn2"));
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  int open = 0;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (dynamic_cast<CDlgRelation*>(widget)) ++open;
  }
  EXPECT_EQ(open, 1);
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (dynamic_cast<CDlgRelation*>(widget)) widget->close();
  }
}

}  // namespace
