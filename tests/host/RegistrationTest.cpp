#include <gtest/gtest.h>

#include <algorithm>

#include "CallLog.h"
#include "FaultInjection.h"
#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "ProMenuBar.h"
#include "ProToolkitDll.h"
#include "Registration.h"
#include "Timers.h"

namespace {

// Registration calls as "call:first argument", a line for each menu or
// command added.
std::string RegistrationCalls() {
  std::string calls;
  for (const auto& call : sim::CallLog()) {
    std::string name = call.name;
    for (const char* prefix : {"ProMenubarmenu", "ProMenubar", "ProCmd"}) {
      if (name.rfind(prefix, 0) == 0) {
        name.erase(0, std::string(prefix).size());
        break;
      }
    }
    if (name == call.name) continue;
    bool opens = name == "ActionAdd" || name == "MenuAdd";
    if (!calls.empty()) calls += opens ? "\n" : " ";
    calls += name + ":" + (call.args.empty() ? "" : call.args[0]);
  }
  return calls + "\n";
}

const sim::MenuItem* FindMenu(const std::vector<sim::MenuItem>& items, const std::string& name) {
  for (const auto& item : items) {
    if (item.name == name) return &item;
    if (const auto* found = FindMenu(item.children, name)) return found;
  }
  return nullptr;
}

std::vector<std::string> ChildNames(const sim::MenuItem& menu) {
  std::vector<std::string> names;
  for (const auto& child : menu.children) names.push_back(child.name);
  return names;
}

std::vector<std::string> CommandNames() {
  std::vector<std::string> names;
  for (const auto& command : sim::Commands()) names.push_back(command.name);
  return names;
}

class RegistrationTest : public testing::Test {
 protected:
  void SetUp() override { AutoSaveStarted = 0; }

  void SetMenuOption(const std::string& key, const std::string& value) {
    std::string opt = dir_.Read("app/config/Opt.cfg");
    std::string line = key + "=";
    size_t at = opt.find(line);
    ASSERT_NE(at, std::string::npos) << "the delivered Opt.cfg holds " << key;
    size_t end = opt.find('\n', at);
    opt.replace(at, end - at, line + value);
    dir_.Write("app/config/Opt.cfg", opt);
  }

  int Initialize() {
    size_t before = platform::ActiveTimers().size();
    int result = user_initialize(0, nullptr, nullptr, nullptr, nullptr);
    timersStarted_ = static_cast<int>(platform::ActiveTimers().size() - before);
    return result;
  }

  TestDir dir_;
  PluginHost host_{dir_};
  int timersStarted_ = 0;
};

}  // namespace

TEST_F(RegistrationTest, GroupsRegisterInOrderWithDesignationBeforeIconOnlyInTheParameterGroup) {
  sim::SetCallLogging(true);
  ASSERT_EQ(Initialize(), 0);
  EXPECT_EQ(RegistrationCalls(),
            "MenuAdd:BOMMenubarId\n"
            "ActionAdd:CmdBOMShowId PushbuttonAdd:BOMMenubarId\n"
            "ActionAdd:CmdBOMShow2Id IconSet:CmdBOMShow2Id Designate:CmdBOMShow2Id\n"
            "ActionAdd:CmdBOMSetId PushbuttonAdd:BOMMenubarId\n"
            "ActionAdd:CmdBOMSet2Id IconSet:CmdBOMSet2Id Designate:CmdBOMSet2Id\n"
            "MenuAdd:ParamMenuBarId\n"
            "ActionAdd:CmdParamsSetId PushbuttonAdd:ParamMenuBarId IconSet:CmdParamsSetId\n"
            "ActionAdd:CmdParamsSet2Id Designate:CmdParamsSet2Id IconSet:CmdParamsSet2Id\n"
            "ActionAdd:CmdParamMergeId PushbuttonAdd:ParamMenuBarId IconSet:CmdParamMergeId\n"
            "ActionAdd:CmdMaterialSetId PushbuttonAdd:ParamMenuBarId IconSet:CmdMaterialSetId\n"
            "ActionAdd:CmdMaterialSet2Id Designate:CmdMaterialSet2Id IconSet:CmdMaterialSet2Id\n"
            "ActionAdd:CmdIdRelationMenuBtn PushbuttonAdd:ParamMenuBarId IconSet:CmdIdRelationMenuBtn\n"
            "ActionAdd:CmdIdRelationMenuBtn2 Designate:CmdIdRelationMenuBtn2 IconSet:CmdIdRelationMenuBtn2\n"
            "ActionAdd:CmdModelNameId PushbuttonAdd:ParamMenuBarId IconSet:CmdModelNameId\n"
            "ActionAdd:CmdModelExportId PushbuttonAdd:ParamMenuBarId IconSet:CmdModelExportId\n"
            "MenuAdd:AutoMenuBarId\n"
            "ActionAdd:CmdSaveAutoSetId PushbuttonAdd:AutoMenuBarId\n"
            "ActionAdd:CmdOpenWrkDirId PushbuttonAdd:AutoMenuBarId IconSet:CmdOpenWrkDirId\n"
            "ActionAdd:CmdNewDrwId PushbuttonAdd:AutoMenuBarId IconSet:CmdNewDrwId\n"
            "ActionAdd:CmdBackupMdlId PushbuttonAdd:AutoMenuBarId IconSet:CmdBackupMdlId\n"
            "ActionAdd:CmdDelOldMdlID PushbuttonAdd:AutoMenuBarId IconSet:CmdDelOldMdlID\n"
            "ActionAdd:CmdSPLId PushbuttonAdd:ParamMenuBarId IconSet:CmdSPLId\n");
}

TEST_F(RegistrationTest, EveryLabelIconAndDesignationOfTheInstallationResolves) {
  Initialize();
  auto commands = sim::Commands();
  ASSERT_EQ(commands.size(), 19u);
  for (const auto& command : commands) {
    SCOPED_TRACE(command.name);
    EXPECT_EQ(command.priority, 2);
    bool hasIcon =
        command.name != "CmdBOMShowId" && command.name != "CmdBOMSetId" && command.name != "CmdSaveAutoSetId";
    EXPECT_EQ(!command.icon.empty(), hasIcon);
    if (command.designated) {
      EXPECT_FALSE(command.label.empty());
    }
  }
  auto bar = sim::MenuBar();
  for (const char* menu : {"BOMMenubarId", "ParamMenuBarId", "AutoMenuBarId"}) {
    const auto* item = FindMenu(bar, menu);
    ASSERT_NE(item, nullptr) << menu;
    EXPECT_FALSE(item->label.empty());
    for (const auto& button : item->children) EXPECT_FALSE(button.label.empty()) << button.name;
  }
}

TEST_F(RegistrationTest, WindowFlagsAreOnExceptForTheSecondSettingsCommand) {
  Initialize();
  for (const auto& command : sim::Commands()) {
    bool expected = command.name != "CmdBOMSet2Id";
    EXPECT_EQ(command.allowInNonActiveWindow, expected) << command.name;
    EXPECT_EQ(command.allowInAccessoryWindow, expected) << command.name;
  }
}

TEST_F(RegistrationTest, GroupsGoBehindUtilitiesAndTheLibraryButtonIntoTheParameterMenu) {
  Initialize();
  auto bar = sim::MenuBar();
  auto utilities = std::find_if(bar.begin(), bar.end(), [](const auto& m) { return m.name == "Utilities"; });
  ASSERT_NE(utilities, bar.end());
  // Each group goes directly behind "Utilities", so the last added stands first.
  EXPECT_EQ((utilities + 1)->name, "AutoMenuBarId");
  EXPECT_EQ((utilities + 2)->name, "ParamMenuBarId");
  EXPECT_EQ((utilities + 3)->name, "BOMMenubarId");
  EXPECT_EQ(ChildNames(*FindMenu(bar, "ParamMenuBarId")).back(), "SPLMenuBtnId");
  EXPECT_EQ(FindMenu(bar, "AutoMenuBarId")->children.front().command, "CmdSaveAutoSetId");
}

TEST_F(RegistrationTest, FailingMenuLeavesThatGroupWithoutCommandsAndTheOthersRegistered) {
  sim::FailCall("ProMenubarMenuAdd", PRO_TK_GENERAL_ERROR, sim::Times::Once);
  EXPECT_EQ(Initialize(), 0);
  auto names = CommandNames();
  EXPECT_EQ(std::count(names.begin(), names.end(), "CmdBOMShowId"), 0);
  EXPECT_EQ(names.front(), "CmdParamsSetId");
  EXPECT_NE(FindMenu(sim::MenuBar(), "AutoMenuBarId"), nullptr);
  EXPECT_EQ(timersStarted_, 1);
}

TEST_F(RegistrationTest, WithoutTheParameterMenuTheLibraryButtonHasNoParentAndLoadingGoesOn) {
  RegisterBomGroup();
  sim::FailCall("ProMenubarMenuAdd", PRO_TK_GENERAL_ERROR, sim::Times::Once);
  EXPECT_NE(RegisterParamGroup(), 0);
  EXPECT_EQ(RegisterAutoGroup(), 0);
  EXPECT_EQ(RegisterSplButton(), 0);
  EXPECT_EQ(FindMenu(sim::MenuBar(), "SPLMenuBtnId"), nullptr);
  auto names = CommandNames();
  EXPECT_NE(std::find(names.begin(), names.end(), "CmdSPLId"), names.end());
}

TEST_F(RegistrationTest, UnknownMenubarIdLeavesNoGroupButTheLibraryCommandAndStartsNoTimer) {
  SetMenuOption("MenubarId", "NoSuchMenu");
  EXPECT_EQ(Initialize(), 0);
  EXPECT_EQ(CommandNames(), std::vector<std::string>{"CmdSPLId"});
  for (const char* menu : {"BOMMenubarId", "ParamMenuBarId", "AutoMenuBarId"})
    EXPECT_EQ(FindMenu(sim::MenuBar(), menu), nullptr) << menu;
  EXPECT_EQ(timersStarted_, 0);
  EXPECT_EQ(AutoSaveStarted, 0);
}

TEST_F(RegistrationTest, KnownMenubarIdPutsTheGroupsIntoThatMenu) {
  SetMenuOption("MenubarId", "Tools");
  Initialize();
  auto bar = sim::MenuBar();
  const auto* tools = FindMenu(bar, "Tools");
  ASSERT_NE(tools, nullptr);
  auto children = ChildNames(*tools);
  for (const char* menu : {"BOMMenubarId", "ParamMenuBarId", "AutoMenuBarId"})
    EXPECT_NE(std::find(children.begin(), children.end(), menu), children.end()) << menu;
}

TEST_F(RegistrationTest, FrontMenuBtnPutsTheSettingsButtonBeforeTheListButtonBehindTheNeighbour) {
  // The BOM menu is already there from the same menu file, with a button of
  // the host's behind which the plug-in's buttons go.
  char menu[] = "BOMMenubarId", label[] = "BOMMenuBar", utilities[] = "Utilities";
  char action[] = "HostAction", button[] = "HostBtn", key[] = "BOMShowMenuBtn";
  std::wstring file = L"BOMMenu.txt";
  ASSERT_EQ(ProMenubarMenuAdd(menu, label, utilities, PRO_B_TRUE, file.data()), PRO_TK_NO_ERROR);
  uiCmdCmdId id = nullptr;
  ASSERT_EQ(
      ProCmdActionAdd(
          action, [](uiCmdCmdId, uiCmdValue*, void*) { return 0; }, 2, nullptr, PRO_B_TRUE, PRO_B_TRUE, &id),
      PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMenubarmenuPushbuttonAdd(menu, button, key, key, nullptr, PRO_B_TRUE, id, file.data()),
            PRO_TK_NO_ERROR);
  SetMenuOption("FrontMenuBtn", "HostBtn");

  ASSERT_EQ(RegisterBomGroup(), 0);
  EXPECT_EQ(ChildNames(*FindMenu(sim::MenuBar(), "BOMMenubarId")),
            (std::vector<std::string>{"HostBtn", "BOMSetMenuBtnID", "BOMShowMenuBtnID"}));
}

TEST_F(RegistrationTest, TimersStartOnlyOnceAProcess) {
  Initialize();
  EXPECT_EQ(timersStarted_, 1);
  EXPECT_EQ(AutoSaveStarted, 1);
  sim::StartHost({host_.WorkDir()});
  sim::RegisterApplication(host_.TextRoot(), 1);
  Initialize();
  EXPECT_EQ(timersStarted_, 0);
}
