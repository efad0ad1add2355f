// 材料批量设置 over a session made in the test: what it opens with, its
// layout, and the picks, the saving and the material table played as a
// user's steps through the workbench's script runner.
#include "DlgMatSet.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

#include <filesystem>
#include <sstream>

#include "CfgOption.h"
#include "CodePage.h"
#include "ExcelApp.h"
#include "HostControl.h"
#include "IniEx.h"
#include "Inspection.h"
#include "ListCtrlEx.h"
#include "MatTable.h"
#include "MaterialFileText.h"
#include "PluginHost.h"
#include "RecordedPrompts.h"
#include "ProToolkitDll.h"
#include "Registration.h"
#include "Script.h"
#include "ScriptRunner.h"
#include "TkMaterial.h"
#include "TkModel.h"

namespace fs = std::filesystem;

namespace {

constexpr int kColMaterial = 2;
constexpr int kColMaterialPath = 3;
enum Row { kRowGearbox, kRowShaft, kRowCover, kRowPin };

// A gearbox of three parts: the shaft in 45 and the cover in Q235, whose
// files lie in the material directory "mat", and the pin in a material of
// which there is no file. A drawing of the gearbox is in session too.
class DlgMatSetTest : public testing::Test, protected RecordedPrompts {
 protected:
  void SetUp() override {
    dir.Write("session/gearbox.asm.1", R"({"type": "assembly",
      "parameters": [{"name": "图号", "type": "string", "value": "G-000"}],
      "components": [{"id": 1, "model": "shaft.prt"}, {"id": 2, "model": "cover.prt"},
                     {"id": 3, "model": "pin.prt"}]})");
    dir.Write("session/shaft.prt.1", Part("45", 7.85e-9, 1000, R"(, "parameters": [
      {"name": "图号", "type": "string", "value": "S-001"}, {"name": "名称", "type": "string", "value": "轴"}])"));
    dir.Write("session/cover.prt.1", Part("Q235", 7.85e-9, 2000));
    dir.Write("session/pin.prt.1", Part("OLDSTEEL", 7.8e-9, 100));
    dir.Write("session/gearbox.drw.1", R"({"type": "drawing", "solids": ["gearbox.asm"]})");
    dir.Write("session/session.json",
              R"({"open": ["gearbox.asm", "gearbox.drw"], "current": "gearbox.asm"})");
    ASSERT_EQ(sim::LoadSession(dir.path() / "session"), PRO_TK_NO_ERROR);
    WriteMaterial("mat/45.mtl", "45", "7.85e-09");
    WriteMaterial("mat/q235.mtl", "Q235", "7.85e-09");
    WriteMaterial("mat/40cr.mtl", "40Cr", "7.87e-09");
    WriteMaterial("elsewhere/h62.mtl", "H62", "8.43e-09");
    // Relative, so that the option fits its 80 characters wherever the test runs.
    material.SetMaterialDir(L"mat");
  }
  void TearDown() override {
    for (QWidget* widget : QApplication::topLevelWidgets()) delete dynamic_cast<CDlgMatSet*>(widget);
  }

  static std::string Part(const std::string& materialName, double density, double volume,
                          const std::string& more = "") {
    std::ostringstream text;
    text << R"({"type": "part", "material": ")" << materialName << R"(", "density": )" << density
         << R"(, "massProperties": {"volume": )" << volume << "}" << more << "}";
    return text.str();
  }
  void WriteMaterial(const std::string& file, const std::string& name, const std::string& density) const {
    dir.Write("work/" + file, MaterialFileText(name, density + " tonne/mm^3"));
  }
  void SetParamsOption(const std::wstring& key, const std::wstring& value) const {
    CIniEx().SetValue(CCfgOption().GetParamsCfgPath(), L"MatSetDlg", key, value, L"");
  }
  ProMdl Model(const std::wstring& fileName) const {
    for (const sim::SessionModel& model : sim::SessionModels()) {
      if (model.fileName.starts_with(fileName)) return model.handle;
    }
    return nullptr;
  }
  std::wstring MaterialOf(const std::wstring& fileName) const {
    return material.GetMdlMaterialName(Model(fileName));
  }
  double Mass(const std::wstring& fileName) const {
    double mass = 0;
    double unused[9];
    CTkModel().GetMassProperty(Model(fileName), mass, unused[0], unused[1], unused[2], unused[3], unused[4],
                               unused[5], unused[6], unused[7], unused[8], L"");
    return mass;
  }

  static std::vector<CDlgMatSet*> Shown() {
    std::vector<CDlgMatSet*> shown;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* found = dynamic_cast<CDlgMatSet*>(widget); found && found->isVisible())
        shown.push_back(found);
    }
    return shown;
  }
  static CDlgMatSet* Open() {
    ShowMatSetDlg();
    std::vector<CDlgMatSet*> shown = Shown();
    return shown.size() == 1 ? shown[0] : nullptr;
  }
  static std::vector<std::wstring> Column(const CListCtrlEx* list, int col) {
    std::vector<std::wstring> texts;
    for (int row = 0; row < list->GetItemCount(); ++row) texts.push_back(list->GetItemText(row, col));
    return texts;
  }

  // Plays the steps with the plug-in registered; what the runner printed.
  std::string Play(const std::string& steps) {
    AutoSaveStarted = 1;  // the timers are not under test here
    user_initialize(0, nullptr, nullptr, nullptr, nullptr);
    ParsedScript script = ParseScript(steps);
    EXPECT_TRUE(script.error.empty());
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(PlayScript(script.steps, {L"test.play", 500, nullptr, L"", L""}, out, err), 0) << err.str();
    return out.str();
  }
  std::string Path(const std::string& relative) const { return (dir.path() / relative).string(); }

  TestDir dir;
  PluginHost host{dir};
  CTkMaterial material;
};

TEST_F(DlgMatSetTest, OpensOnTheCurrentModelWithMaterialsAndTheShownParameterColumns) {
  CCfgOption().SetCheckDir(1);
  CDlgMatSet* dialog = Open();
  ASSERT_NE(dialog, nullptr);
  auto* list = dialog->findChild<CListCtrlEx*>("MatList");
  EXPECT_EQ(dialog->windowTitle(), "材料批量设置");
  EXPECT_TRUE(dialog->windowFlags() & Qt::WindowStaysOnTopHint);
  QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(dialog->frameGeometry().topRight(), screen.topRight());
  EXPECT_TRUE(prompts.empty());

  std::vector<std::wstring> headers;
  for (int col = 0; col < list->columnCount(); ++col)
    headers.push_back(list->horizontalHeaderItem(col)->text().toStdWString());
  EXPECT_EQ(headers,
            (std::vector<std::wstring>{L"序号", L"模型名称", L"材料名称", L"材料目录", L"图号", L"名称"}))
      << "the delivered MatCol.cfg hides 备注";
  EXPECT_EQ(list->columnWidth(kColMaterialPath), 0);
  EXPECT_EQ(Column(list, 0), (std::vector<std::wstring>{L"01", L"02", L"03", L"04"}));
  EXPECT_EQ(Column(list, 1), (std::vector<std::wstring>{L"GEARBOX", L"SHAFT", L"COVER", L"PIN"}));
  EXPECT_EQ(Column(list, kColMaterial), (std::vector<std::wstring>{L"", L"45", L"Q235", L"OLDSTEEL"}));
  EXPECT_EQ(Column(list, 4), (std::vector<std::wstring>{L"G-000", L"S-001", L"", L""}));
  for (int row = 0; row < list->GetItemCount(); ++row) EXPECT_TRUE(list->GetCheck(row)) << row;
  EXPECT_TRUE(dialog->findChild<QRadioButton*>("RadioCurMdl")->isChecked());
  EXPECT_TRUE(dialog->findChild<QPushButton*>("SaveButton")->isEnabled());
  EXPECT_EQ(dialog->findChild<QPushButton*>("FilterButton")->text(), "过滤方案: ");
  // "ShowLoadDir" is off in the delivered Params.cfg: the box is neither
  // shown nor checked, whatever "CheckDir" says.
  auto* checkDir = dialog->findChild<QCheckBox*>("CheckDir");
  EXPECT_FALSE(checkDir->isVisible());
  EXPECT_FALSE(checkDir->isChecked());
  EXPECT_FALSE(dialog->findChild<QLineEdit*>("DirEdit")->isVisible());

  dialog->findChild<QRadioButton*>("RadioSessionMdl")->click();
  EXPECT_EQ(list->GetItemCount(), 5) << "the drawing stands in the list too";
  EXPECT_EQ(list->GetItemText(4, kColMaterial), L"");
}

TEST_F(DlgMatSetTest, WithoutAMaterialDirectoryTheUserIsToldAndTheModelsStillShow) {
  material.SetMaterialDir(L"");
  CDlgMatSet* dialog = Open();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(prompts, std::vector<std::wstring>{L"提示:请通过选项pro_material_dir设置材料目录"});
  EXPECT_EQ(dialog->findChild<CListCtrlEx*>("MatList")->GetItemCount(), 4);
  EXPECT_TRUE(dialog->findChild<QPushButton*>("SaveButton")->isEnabled());
}

TEST_F(DlgMatSetTest, TheListAndTheButtonsFollowTheClientSize) {
  CDlgMatSet* dialog = Open();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->minimumSize(), QSize(550, 300));
  dialog->resize(900, 640);
  auto* list = dialog->findChild<CListCtrlEx*>("MatList");
  EXPECT_EQ(list->geometry(), QRect(20, 72, 860, 500)) << "the top left corner stays";
  EXPECT_EQ(dialog->findChild<QPushButton*>("FilterButton")->geometry().topLeft(), QPoint(20, 600));
  auto rightEdge = [&](const char* name) {
    QRect button = dialog->findChild<QPushButton*>(name)->geometry();
    EXPECT_EQ(button.top(), 600) << name;
    return button.x() + button.width();
  };
  EXPECT_EQ(rightEdge("ExportButton"), 900 - 350);
  EXPECT_EQ(rightEdge("ImportButton"), 900 - 250);
  EXPECT_EQ(rightEdge("SaveButton"), 900 - 150);
  EXPECT_EQ(rightEdge("CancelButton"), 900 - 14);
}

TEST_F(DlgMatSetTest, APickFromTheFileDialogOutsideTheMaterialDirectoryIsAssigned) {
  std::string out = Play(
      "run CmdMaterialSetId\n"
      "select MatList 2\n"
      "answer file " +
      Path("work/elsewhere/h62.mtl") +
      "\n"
      "menu MatList 2 选择材料(&M)\n"
      "dump MatList\n"
      "click 保存\n");
  EXPECT_NE(out.find("chooser file Creo材料 (*.mtl)|*.mtl|Creo材料 (*.mat)|*.mat||"), std::string::npos)
      << out;
  EXPECT_NE(out.find("02\tSHAFT\tH62\t" + Path("work/elsewhere/h62.mtl") + "\t"), std::string::npos) << out;
  EXPECT_EQ(MaterialOf(L"shaft.prt"), L"H62");
  EXPECT_NEAR(Mass(L"shaft.prt"), 1000 * 8.43e-9, 1e-12);
  EXPECT_EQ(sim::ConfigOptions()[L"pro_material_dir"], L"mat") << "the option is back after the row";
}

TEST_F(DlgMatSetTest, SavingAnUnchangedTableRewritesEveryCheckedMaterialThatIsFound) {
  // The files change behind the session's back: the save reads them again.
  WriteMaterial("mat/45.mtl", "45", "7.9e-09");
  WriteMaterial("mat/q235.mtl", "Q235", "7.8e-09");
  Play(
      "run CmdMaterialSetId\n"
      "click 保存\n");
  EXPECT_EQ(MaterialOf(L"shaft.prt"), L"45");
  EXPECT_NEAR(Mass(L"shaft.prt"), 1000 * 7.9e-9, 1e-12);
  EXPECT_NEAR(Mass(L"cover.prt"), 2000 * 7.8e-9, 1e-12);
  EXPECT_EQ(MaterialOf(L"pin.prt"), L"OLDSTEEL") << "no file of its material: passed over";
  EXPECT_NEAR(Mass(L"pin.prt"), 100 * 7.8e-9, 1e-12);
  EXPECT_FALSE(fs::exists(dir.path() / "session" / "shaft.prt.2")) << "saved only with 自动保存零件";

  WriteMaterial("mat/45.mtl", "45", "7.85e-09");
  WriteMaterial("mat/q235.mtl", "Q235", "7.85e-09");
  Play(
      "run CmdMaterialSetId\n"
      "check MatList 3 off\n"
      "click 自动保存零件\n"
      "click 保存\n");
  EXPECT_NEAR(Mass(L"shaft.prt"), 1000 * 7.85e-9, 1e-12);
  EXPECT_NEAR(Mass(L"cover.prt"), 2000 * 7.8e-9, 1e-12) << "an unchecked row is left alone";
  EXPECT_EQ(CCfgOption().GetCheckAutoSave(), 1);
  EXPECT_TRUE(fs::exists(dir.path() / "session" / "shaft.prt.2"));
  EXPECT_FALSE(fs::exists(dir.path() / "session" / "cover.prt.2"));
}

TEST_F(DlgMatSetTest, ThePickListNamesTheFileInTheMaterialDirectoryAndItsEmptyEntryClears) {
  SetParamsOption(L"MatListStyle", L"1");
  std::string out = Play(
      "run CmdMaterialSetId\n"
      "select MatList 2\n"
      "menu MatList 2 选择材料(&M)\n"
      "dump MatNameList\n"
      "dblclick MatNameList 2\n"
      "select MatList 3\n"
      "menu MatList 3 选择材料(&M)\n"
      "dblclick MatNameList 1\n"
      "dump MatList\n"
      "click 保存\n");
  EXPECT_NE(out.find("\t\n[-]\t40CR\n[-]\t45\n[-]\tQ235\n"), std::string::npos) << out;
  EXPECT_NE(out.find("02\tSHAFT\t40CR\tmat\\40CR.mtl\t"), std::string::npos) << out;
  EXPECT_NE(out.find("03\tCOVER\t\tmat\\.mtl\t"), std::string::npos) << out;
  EXPECT_EQ(MaterialOf(L"shaft.prt"), L"40CR");
  EXPECT_NEAR(Mass(L"shaft.prt"), 1000 * 7.87e-9, 1e-12);
  // The assignment deletes every material before the read that fails.
  std::optional<std::string> cover = sim::ModelState(Model(L"cover.prt"));
  ASSERT_TRUE(cover.has_value());
  EXPECT_EQ(cover->find("Q235"), std::string::npos) << *cover;
}

TEST_F(DlgMatSetTest, AnImportFromAShorterWorkbookEmptiesTheFurtherRowsAndKeepsTheirPicks) {
  sim::PushAnswer("ProDirectoryChoose", dir.Wide("out"));
  fs::create_directories(dir.path() / "out");
  WriteMatTable({{L"01", L"GEARBOX", L""}, {L"02", L"SHAFT", L"40Cr"}});
  std::string out = Play(
      "run CmdMaterialSetId\n"
      "select MatList 4\n"
      "answer file " +
      Path("work/elsewhere/h62.mtl") +
      "\n"
      "menu MatList 4 选择材料(&M)\n"
      "answer file " +
      Path("out/MatTable.xls") +
      "\n"
      "click 导入材料表\n"
      "dump MatList\n"
      "click 保存\n");
  EXPECT_NE(out.find("02\tSHAFT\t40Cr\t\t"), std::string::npos) << out;
  EXPECT_NE(out.find("03\tCOVER\t\t\t"), std::string::npos) << out;
  EXPECT_NE(out.find("04\tPIN\t\t" + Path("work/elsewhere/h62.mtl") + "\t"), std::string::npos) << out;
  EXPECT_EQ(MaterialOf(L"shaft.prt"), L"40CR") << "found in the material directory by its name";
  EXPECT_EQ(MaterialOf(L"cover.prt"), L"Q235") << "an empty name finds no file";
  EXPECT_EQ(MaterialOf(L"pin.prt"), L"") << "a path with an empty name reads nothing";
}

TEST_F(DlgMatSetTest, TheExportWritesNumberNameAndMaterialOfEveryRow) {
  fs::create_directories(dir.path() / "out");
  std::string out = Play(
      "run CmdMaterialSetId\n"
      "check MatList 2 off\n"
      "answer dir " +
      Path("out") +
      "\n"
      "answer no\n"
      "click 导出材料表\n");
  EXPECT_NE(out.find("是否打开："), std::string::npos) << out;
  ExcelApp excel;
  excel.StartExcel(0);
  ASSERT_EQ(excel.OpenWorkbook(dir.Wide("out/MatTable.xls")), 1) << out;
  std::vector<std::wstring> cells;
  for (int col = 1; col <= 4; ++col) {
    std::wstring text;
    excel.GetCellText(L"sheet1", 3, col, text);
    cells.push_back(text);
  }
  EXPECT_EQ(cells, (std::vector<std::wstring>{L"02", L"SHAFT", L"45", L""}))
      << "an unchecked row too, and no path";
}

TEST_F(DlgMatSetTest, EachCommandReplacesTheOpenDialog) {
  AutoSaveStarted = 1;
  user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  ASSERT_TRUE(sim::RunAction("CmdMaterialSetId"));
  ASSERT_EQ(Shown().size(), 1u);
  CDlgMatSet* first = Shown()[0];
  ASSERT_TRUE(sim::RunAction("CmdMaterialSet2Id"));
  ASSERT_EQ(Shown().size(), 1u);
  EXPECT_NE(Shown()[0], first);
}

}  // namespace
