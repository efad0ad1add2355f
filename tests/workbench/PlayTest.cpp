// Scripts played on the plug-in's dialogs over the sample session, in
// process: each step kind, the failures with their lines, and a modal dialog
// driven by the step after the one that opened it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <sstream>

#include "CodePage.h"
#include "HostControl.h"
#include "SampleSessionTest.h"
#include "Script.h"
#include "ScriptRunner.h"

namespace {

struct Played {
  int exitCode = -1;
  std::string out;
  std::string err;
  bool Printed(const std::string& text) const { return out.find(text) != std::string::npos; }
};

class PlayTest : public SampleSessionTest {
 protected:
  void TearDown() override {
    for (QWidget* widget : QApplication::topLevelWidgets()) widget->close();
  }

  // A failing step waits this long for its control; a passing one never does.
  Played Play(const std::string& text, int waitMs = 200) {
    ParsedScript script = ParseScript(text);
    EXPECT_TRUE(script.error.empty());
    std::ostringstream out;
    std::ostringstream err;
    PlayOptions options{L"test.play", waitMs, nullptr, L"", platform::ToWide(dir_.path().string())};
    Played played;
    played.exitCode = PlayScript(script.steps, options, out, err);
    played.out = out.str();
    played.err = err.str();
    return played;
  }
  std::string Out() const { return (dir_.path() / "out").string() + "/"; }
};

TEST(ScriptTest, FieldsQuotesAndComments) {
  ParsedScript script = ParseScript(
      "\xEF\xBB\xBF# a comment line\n"
      "\n"
      "set 名称 \"two words\" # trailing comment\n"
      "  set combo@参考属性#2 \"say \"\"hi\"\"\" \"\"\r\n"
      "click 输出");
  ASSERT_TRUE(script.error.empty());
  ASSERT_EQ(script.steps.size(), 3u);
  EXPECT_EQ(script.steps[0].line, 3);
  EXPECT_EQ(script.steps[0].fields, (std::vector<std::wstring>{L"set", L"名称", L"two words"}));
  EXPECT_EQ(script.steps[1].line, 4);
  EXPECT_EQ(script.steps[1].fields,
            (std::vector<std::wstring>{L"set", L"combo@参考属性#2", L"say \"hi\"", L""}));
  EXPECT_EQ(StepText(script.steps[1]), L"set combo@参考属性#2 \"say \"\"hi\"\"\" \"\"");
  EXPECT_EQ(script.steps[2].line, 5);

  ParsedScript broken = ParseScript("run CmdBOMShowId\nset 名称 \"open\n");
  EXPECT_EQ(broken.errorLine, 2);
  EXPECT_FALSE(broken.error.empty());
}

TEST_F(PlayTest, ListOpensDumpsAndChangesLevelThroughItsRadio) {
  Played played = Play(
      "run CmdBOMShowId\n"
      "click 汇总清单\n"
      "dump list\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_TRUE(played.Printed("1> run CmdBOMShowId\n2> click 汇总清单\n3> dump list\n序号\t层级\t图号\t名称"))
      << played.out;
  EXPECT_TRUE(played.Printed("[x]\t1\t")) << played.out;
}

TEST_F(PlayTest, CheckSelectAndContextMenuActOnRows) {
  Played played = Play(
      "run CmdBOMShowId\n"
      "check BomList 1 off\n"
      "check list 2 off\n"
      "check list 2 on\n"
      "select list 2-3\n"
      "menu list 3 选中行取消\n"
      "dump list\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  std::istringstream lines(played.out.substr(played.out.find("7> dump list\n")));
  std::vector<std::string> checks;
  for (std::string line; std::getline(lines, line);) checks.push_back(line.substr(0, 3));
  ASSERT_GE(checks.size(), 6u);
  EXPECT_EQ(checks[2], "[ ]");  // row 1: unchecked by its box
  EXPECT_EQ(checks[3], "[ ]");  // rows 2 and 3: by the menu over the selection
  EXPECT_EQ(checks[4], "[ ]");
  EXPECT_EQ(checks[5], "[x]");
}

TEST_F(PlayTest, CellEditedAndSavedShowsInTheModel) {
  Played played = Play(
      "run CmdBOMShowId\n"
      "edit list 2 名称 \"新 名称\"\n"
      "edit list 2 材料 Q235\n"
      "click 保存参数\n"
      "dump list\n"
      "model housing.prt\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_TRUE(played.Printed("prompt 提示: 参数信息保存完成! -> ok")) << played.out;
  EXPECT_TRUE(played.Printed("\t新 名称\t")) << played.out;
  EXPECT_TRUE(played.Printed("Q235")) << played.out;
  // The model line shows the new name before anything was saved.
  std::string model = played.out.substr(played.out.find("6> model housing.prt\n"));
  EXPECT_NE(model.find("新 名称"), std::string::npos) << model;
}

TEST_F(PlayTest, ModalDialogIsDrivenByTheNextSteps) {
  // The settings dialog opens modal from its command; the steps after it
  // change a column there and close it, then the list shows the change.
  Played played = Play(
      "run CmdBOMSetId\n"
      "select ColList 4\n"
      "set 列头名称 品名\n"
      "click 应用\n"
      "close\n"
      "run CmdBOMShowId\n"
      "dump list\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_TRUE(played.Printed("序号\t层级\t图号\t品名\t")) << played.out;
}

TEST_F(PlayTest, QueuedAnswersGoToQuestionsAndChoosersInOrder) {
  std::filesystem::create_directories(dir_.path() / "out");
  Played played = Play(
      "run CmdBOMShowId\n"
      "answer dir $WORKDIR/out/\n"
      "click OutDirButton\n"
      "check Text on\n"
      "answer no\n"
      "click 输出\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_TRUE(played.Printed("chooser ProDirectoryChoose  -> " + Out())) << played.out;
  EXPECT_TRUE(played.Printed("是否打开：")) << played.out;
  EXPECT_TRUE(played.Printed(" ？ -> no")) << played.out;
  EXPECT_TRUE(std::filesystem::exists(dir_.path() / "out" / "REDUCER_零件明细.txt"));
}

TEST_F(PlayTest, FilesListsADirectorySortedWithItsSubdirectoriesMarked) {
  dir_.Write("listed/b.txt", "");
  dir_.Write("listed/a/inner.txt", "");
  Played played = Play("files $WORKDIR/listed\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_TRUE(played.Printed("1> files $WORKDIR/listed\na/\nb.txt\n")) << played.out;
}

TEST_F(PlayTest, DrawingTableGoesToThePointAnsweredForThePick) {
  Played played = Play(
      "current reducer.drw\n"
      "run CmdBOMShowId\n"
      "check Drawing on\n"
      "answer pick 400,300\n"
      "click 输出\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_TRUE(played.Printed("chooser ProMousePickGet  -> 400,300")) << played.out;
}

// A dialog of the test's own: a list whose double click opens a modal dialog
// asking for one name.
TEST_F(PlayTest, DoubleClickOpensADialogThatTakesTheQueuedText) {
  QDialog dialog;
  dialog.setWindowTitle("窗口");
  auto* list = new QListWidget(&dialog);
  list->addItems({"甲", "乙"});
  (new QVBoxLayout(&dialog))->addWidget(list);
  QString typed;
  QObject::connect(list, &QListWidget::itemDoubleClicked, [&](QListWidgetItem* item) {
    QDialog ask(&dialog);
    ask.setWindowTitle("名称");
    auto* field = new QLineEdit(&ask);
    auto* confirm = new QPushButton("确定", &ask);
    auto* layout = new QVBoxLayout(&ask);
    layout->addWidget(field);
    layout->addWidget(confirm);
    QObject::connect(confirm, &QPushButton::clicked, &ask, &QDialog::accept);
    if (ask.exec() == QDialog::Accepted) typed = item->text() + ":" + field->text();
  });
  dialog.show();
  Played played = Play("answer text 新名称\ndblclick list 2\ndump list\n");
  ASSERT_EQ(played.exitCode, 0) << played.err;
  EXPECT_EQ(typed, "乙:新名称");
  EXPECT_TRUE(played.Printed("dialog 名称 -> 新名称\n3> dump list\n\n[-]\t甲\n[-]\t乙\n")) << played.out;
}

// Each failing case names the script's line, the step and the reason, and
// nothing waits longer than the step's own time.
TEST_F(PlayTest, StepsThatCannotRunFailWithTheirLine) {
  struct Case {
    std::string script;
    std::string message;
  } cases[] = {
      {"run CmdBOMShowId\nclick 不存在\n", "test.play:2: click 不存在: no control 不存在"},
      {"run CmdBOMShowId\nset SortCombo 名称\n",
       "test.play:2: set SortCombo 名称: the control SortCombo is disabled"},
      {"run CmdBOMShowId\ncheck list 999 on\n", "test.play:2: check list 999 on: no row 999: the list has"},
      {"run NoSuchCommand\n", "test.play:1: run NoSuchCommand: no command NoSuchCommand"},
      {"run CmdBOMShowId\nclick OutDirButton\n",
       "test.play:2: click OutDirButton: no answer queued for the chooser ProDirectoryChoose"},
      {"run CmdBOMShowId\ncheck Text on\nclick 输出\n",
       "test.play:3: click 输出: no answer queued for the question"},
      {"run CmdBOMShowId\nset FilterCombo 没有\n",
       "test.play:2: set FilterCombo 没有: no entry 没有 in the drop-down"},
      {"run CmdBOMShowId\nmenu list 1 没有\n", "test.play:2: menu list 1 没有: no entry 没有 in the menu"},
      {"run CmdBOMShowId\nclick button@#99\n", "no control button@#99: there are"},
      {"run CmdBOMShowId\ncheck list 1 maybe\n",
       "test.play:2: check list 1 maybe: usage: check LIST ROW on|off"},
      {"frobnicate\n", "test.play:1: frobnicate: no step frobnicate"},
      {"answer maybe\n", "answer takes yes, no"},
      {"close\n", "test.play:1: close: no plug-in window is open"},
      {"files $WORKDIR/none\n", "test.play:1: files $WORKDIR/none: cannot list "},
      // Last: a part stays current.
      {"current housing.prt\nrun CmdBOMShowId\n",
       "test.play:2: run CmdBOMShowId: the command CmdBOMShowId is not available"},
  };
  for (const Case& c : cases) {
    Played played = Play(c.script);
    EXPECT_EQ(played.exitCode, 1) << c.script;
    EXPECT_NE(played.err.find(c.message), std::string::npos) << c.script << "\n" << played.err;
    for (QWidget* widget : QApplication::topLevelWidgets()) widget->close();
  }
}

TEST_F(PlayTest, AmbiguousNameNamesItsCandidates) {
  Played played = Play("run CmdBOMShowId\nclick check@输出选项#9\n");
  EXPECT_EQ(played.exitCode, 1);
  EXPECT_NE(played.err.find("no control check@输出选项#9: there are 3"), std::string::npos) << played.err;

  QDialog dialog;
  auto* layout = new QVBoxLayout(&dialog);
  for (int i = 0; i < 2; ++i) {
    layout->addWidget(new QLineEdit(&dialog));
    layout->itemAt(i)->widget()->setObjectName("名字");
  }
  auto* group = new QGroupBox("结构", &dialog);
  auto* tree = new QTreeWidget(group);
  (new QVBoxLayout(group))->addWidget(tree);
  layout->addWidget(group);
  auto* top = new QTreeWidgetItem(tree, QStringList{"REDUCER"});
  new QTreeWidgetItem(top, QStringList{"HOUSING"});
  dialog.show();
  played = Play("tree 结构 REDUCER/HOUSING\nset edit@#2 第二\nset 名字 x\n");
  EXPECT_EQ(played.exitCode, 1);
  EXPECT_EQ(tree->currentItem()->text(0), "HOUSING");
  EXPECT_EQ(dialog.findChildren<QLineEdit*>()[1]->text(), "第二");
  EXPECT_NE(played.err.find("the name 名字 is ambiguous: [edit 名字] [edit 名字]"), std::string::npos)
      << played.err;
}

}  // namespace
