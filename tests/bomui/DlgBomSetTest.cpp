// "零件清单设置" through its widgets, with Tbl.cfg read back as the list
// dialog reads it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <optional>

#include "CfgOption.h"
#include "DlgBomSet.h"
#include "FileDialog.h"
#include "Files.h"
#include "IniEx.h"
#include "MessageBox.h"
#include "PluginHost.h"
#include "Shell.h"

namespace {

// Lines of the delivered Tbl.cfg.
constexpr int kLineIndex = 0;
constexpr int kLineLevel = 1;
constexpr int kLineDrawingNo = 2;
constexpr int kLineName = 3;
constexpr int kLineQty = 4;
constexpr int kLineParentName = 11;

// The plug-in's delivered settings; prompts, file choosers and the shell are
// answered here.
class DlgBomSetTest : public testing::Test {
 protected:
  void SetUp() override {
    previousBox = platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
      prompts.push_back(request.caption + L":" + request.text);
      return platform::kIdOk;
    });
    previousChooser = platform::SetFileOpenHandler([this](const platform::FileOpenRequest& request) {
      chooserFilters.push_back(request.filter);
      return chosenFile;
    });
    previousShell = platform::SetShellOpenHandler([this](const platform::ShellOpenRequest& request) {
      shellOpened.push_back(request.path);
      return true;
    });
  }
  void TearDown() override {
    dialog.reset();
    platform::SetMessageBoxHandler(previousBox);
    platform::SetFileOpenHandler(previousChooser);
    platform::SetShellOpenHandler(previousShell);
  }

  void WriteTbl(const std::string& colSection) const {
    dir.Write("app/config/Tbl.cfg", "[Col]\n" + colSection);
  }
  void Open() {
    dialog = std::make_unique<CDlgBomSet>();
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    list = Child<QListWidget>("ColList");
  }
  template <typename T = QWidget>
  T* Child(const char* name) const {
    return dialog->findChild<T*>(name);
  }
  void ClickLine(int row) {
    QListWidgetItem* item = list->item(row);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
  }
  QLineEdit* NameEdit() const { return Child<QLineEdit>("NameEdit"); }
  std::vector<std::wstring> Lines() const {
    std::vector<std::wstring> lines;
    for (int row = 0; row < list->count(); ++row) lines.push_back(list->item(row)->text().toStdWString());
    return lines;
  }
  // The columns as the list dialog reads them at its opening.
  std::vector<ColInfo> StoredCols() const {
    std::vector<ColInfo> cols;
    CCfgOption().GetColInfos(cols);
    return cols;
  }
  std::wstring TblLine(const std::wstring& key) const {
    std::wstring value;
    CIniEx().GetValue(CCfgOption().GetTblCfgPath(), L"Col", key, value);
    return value;
  }
  std::string Template() const { return dir.Read("app/template/BOM.xls"); }

  TestDir dir;
  PluginHost host{dir};
  platform::MessageBoxHandler previousBox;
  platform::FileOpenHandler previousChooser;
  platform::ShellOpenHandler previousShell;
  std::vector<std::wstring> prompts;
  std::optional<std::wstring> chosenFile;
  std::vector<std::wstring> chooserFilters;
  std::vector<std::wstring> shellOpened;
  std::unique_ptr<CDlgBomSet> dialog;
  QListWidget* list = nullptr;
};

TEST_F(DlgBomSetTest, OpensWithALineAColumnAndNothingSelected) {
  WriteTbl("1=序号;50;0;;;;2;0;1\n2=;40;0;;;;0;0;1\n3=;40;0;;;;0;0;0\n4=备注;90;1;;;备注;0;0\n5=\n");
  Open();
  EXPECT_EQ(dialog->windowTitle(), "零件清单设置");
  EXPECT_EQ(Lines(), (std::vector<std::wstring>{L"序号", L"--", L"! --", L"! 备注", L"! --"}));
  EXPECT_TRUE(list->selectedItems().isEmpty());
  EXPECT_EQ(NameEdit()->text(), "");
  EXPECT_FALSE(Child<QPushButton>("ApplyButton")->isEnabled());
  EXPECT_EQ(Child<QComboBox>("ParamTypeCombo")->count(), 10);
  EXPECT_EQ(Child<QComboBox>("ParamTypeCombo")->itemText(7), "父元件名称");
  // The drop-downs show no column before the first selection.
  for (const char* combo : {"EditTypeCombo", "ParamNameCombo", "ParamTypeCombo", "ValueTypeCombo"})
    EXPECT_EQ(Child<QComboBox>(combo)->currentText(), "") << combo;
}

TEST_F(DlgBomSetTest, LeavingAColumnStoresItsChangesWithoutApply) {
  std::vector<ColInfo> before = StoredCols();
  Open();
  // The first selection leaves no column behind: nothing is stored.
  ClickLine(kLineDrawingNo);
  EXPECT_EQ(TblLine(L"1"), L"序号;50;0;;;;2;0;1");
  NameEdit()->setText("图 号");
  Child<QComboBox>("EditTypeCombo")->setCurrentIndex(2);
  Child<QCheckBox>("ShowCheck")->setChecked(false);
  ClickLine(kLineName);
  EXPECT_EQ(TblLine(L"3"), L"图 号;130;2;;;图号;0;0;0");
  EXPECT_EQ(StoredCols().size(), before.size());
  EXPECT_EQ(NameEdit()->text(), "名称");
}

TEST_F(DlgBomSetTest, ApplyStoresRefillsAndTheNextSelectionStoresUnderTheOldLineAgain) {
  Open();
  ClickLine(kLineName);
  NameEdit()->setText("零件名");
  Child<QPushButton>("ApplyButton")->click();
  EXPECT_EQ(StoredCols()[kLineName].name, L"零件名");
  EXPECT_EQ(list->item(kLineName)->text(), "零件名");
  EXPECT_TRUE(list->selectedItems().isEmpty());
  EXPECT_FALSE(Child<QPushButton>("ApplyButton")->isEnabled());

  // The fields still hold the applied column, and leaving them for another
  // line stores them under it once more.
  NameEdit()->setText("名称2");
  ClickLine(kLineQty);
  EXPECT_EQ(StoredCols()[kLineName].name, L"名称2");
  EXPECT_EQ(StoredCols()[kLineQty].name, L"数量");
  EXPECT_EQ(NameEdit()->text(), "数量");
  EXPECT_TRUE(Child<QPushButton>("ApplyButton")->isEnabled());
}

TEST_F(DlgBomSetTest, FirstColumnKeepsItsKind) {
  Open();
  auto* kind = Child<QComboBox>("ParamTypeCombo");
  ClickLine(kLineIndex);
  EXPECT_FALSE(kind->isEnabled());
  EXPECT_EQ(kind->currentText(), "序号");
  ClickLine(kLineLevel);
  EXPECT_TRUE(kind->isEnabled());
  ClickLine(kLineIndex);
  EXPECT_FALSE(kind->isEnabled());
}

TEST_F(DlgBomSetTest, ParentNameKindHasNoParameterName) {
  Open();
  auto* paramName = Child<QComboBox>("ParamNameCombo");
  ClickLine(kLineParentName);
  EXPECT_FALSE(paramName->isEnabled());
  EXPECT_EQ(paramName->currentText(), "");

  ClickLine(kLineDrawingNo);
  EXPECT_TRUE(paramName->isEnabled());
  EXPECT_EQ(paramName->currentText(), "图号");
  Child<QComboBox>("ParamTypeCombo")->setCurrentIndex(PARAMTYPE_PARENTNAME);
  EXPECT_FALSE(paramName->isEnabled());
  EXPECT_EQ(paramName->currentText(), "");
  Child<QComboBox>("ParamTypeCombo")->setCurrentIndex(PARAMTYPE_MDLPARAM);
  EXPECT_TRUE(paramName->isEnabled());

  ClickLine(kLineName);
  EXPECT_EQ(StoredCols()[kLineDrawingNo].paramName, L"");
  EXPECT_EQ(StoredCols()[kLineDrawingNo].paramType, PARAMTYPE_MDLPARAM);
}

TEST_F(DlgBomSetTest, WidthThatIsNoNumberStoresZero) {
  Open();
  ClickLine(kLineLevel);
  Child<QLineEdit>("WidthEdit")->setText("宽");
  ClickLine(kLineName);
  EXPECT_EQ(StoredCols()[kLineLevel].width, 0);
}

TEST_F(DlgBomSetTest, ColumnIsStoredUnderItsListPositionNotItsKey) {
  WriteTbl("1=序号;50;0;;;;2;0;1\n3=图号;130;1;;;图号;0;0;1\n7=名称;120;1;;;名称;0;0;1\n");
  Open();
  ClickLine(1);
  NameEdit()->setText("图号改");
  ClickLine(2);
  EXPECT_EQ(TblLine(L"2"), L"图号改;130;1;;;图号;0;0;1");
  EXPECT_EQ(TblLine(L"3"), L"图号;130;1;;;图号;0;0;1");
  EXPECT_EQ(StoredCols().size(), 4u);
}

TEST_F(DlgBomSetTest, ListBoxKeepsLinesPastTheNinetyNinthOnRefill) {
  std::string section = "1=序号;50;0;;;;2;0;1\n";
  // Hidden columns with names only, so that the section stays within what
  // one read delivers.
  for (int key = 2; key <= 101; ++key) section += std::to_string(key) + "=c" + std::to_string(key) + "\n";
  WriteTbl(section);
  Open();
  ASSERT_EQ(list->count(), 101);
  ClickLine(kLineLevel);
  Child<QPushButton>("ApplyButton")->click();
  // Only 99 lines go before the table is added anew, so two stale lines stay
  // on top.
  ASSERT_EQ(list->count(), 103);
  EXPECT_EQ(list->item(0)->text(), "! c100");
  EXPECT_EQ(list->item(1)->text(), "! c101");
  EXPECT_EQ(list->item(2)->text(), "序号");
}

TEST_F(DlgBomSetTest, EditTemplateOpensTheDeliveredWorkbook) {
  Open();
  Child<QPushButton>("EditTemplateButton")->click();
  ASSERT_EQ(shellOpened.size(), 1u);
  EXPECT_TRUE(platform::FileExists(shellOpened[0]));
  EXPECT_EQ(platform::ResolvePath(shellOpened[0]), dir.path() / "app" / "template" / "BOM.xls");
}

TEST_F(DlgBomSetTest, ReplaceTemplateCopiesTheChosenWorkbookAndACancelLeavesTheTemplate) {
  std::string delivered = Template();
  Open();
  Child<QPushButton>("ReplaceTemplateButton")->click();
  EXPECT_EQ(Template(), delivered);
  EXPECT_TRUE(prompts.empty());

  dir.Write("mine.xls", "my template");
  chosenFile = dir.Wide("mine.xls");
  Child<QPushButton>("ReplaceTemplateButton")->click();
  EXPECT_EQ(chooserFilters, std::vector<std::wstring>(2, L"Worksheet Files (*.xls)|*.xls||"));
  EXPECT_EQ(Template(), "my template");
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:模板替换成功!"});
}

// Nothing checks the copy: the old template is gone and success is reported.
TEST_F(DlgBomSetTest, ReplaceTemplateWithAFailedCopyStillReportsSuccess) {
  chosenFile = dir.Wide("vanished.xls");
  Open();
  Child<QPushButton>("ReplaceTemplateButton")->click();
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "app" / "template" / "BOM.xls"));
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:模板替换成功!"});
}

}  // namespace
