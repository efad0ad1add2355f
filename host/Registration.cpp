#include "Registration.h"

#include <string>

#include "AutomationTimers.h"
#include "CfgOption.h"
#include "CodePage.h"
#include "CommandTable.h"
#include "ProMenuBar.h"

int AutoSaveStarted = 0;

namespace {

// The host takes names as narrow strings and fixed buffers of its own sizes;
// an option's menu id is narrowed into a buffer of 260 characters.
std::string NarrowOption(const std::wstring& option) {
  std::string narrow = platform::ToNarrow(option);
  if (narrow.size() > 259) narrow.resize(259);
  return narrow;
}

char* Text(const char* literal) { return const_cast<char*>(literal); }

char* OptionalText(std::string& text) { return text.empty() ? nullptr : text.data(); }

int AddGroupMenu(const MenuGroup& group, std::string& parentMenu, std::wstring& menuFile) {
  if (parentMenu.empty()) {
    return ProMenubarMenuAdd(Text(group.menuId), Text(group.labelKey), Text("Utilities"), PRO_B_TRUE,
                             menuFile.data());
  }
  return ProMenubarmenuMenuAdd(parentMenu.data(), Text(group.menuId), Text(group.labelKey), nullptr,
                               PRO_B_TRUE, menuFile.data());
}

void RegisterCommand(const CommandDef& command, const char* parentMenu, std::string& neighbour,
                     std::wstring& menuFile, bool designateBeforeIcon) {
  uiCmdCmdId id = nullptr;
  ProBoolean windowFlag = command.windowFlags ? PRO_B_TRUE : PRO_B_FALSE;
  ProCmdActionAdd(Text(command.action), command.run, uiProeImmediate, AccessCallback(command.access),
                  windowFlag, windowFlag, &id);
  if (command.button) {
    ProMenubarmenuPushbuttonAdd(Text(parentMenu), Text(command.button), Text(command.labelKey),
                                Text(command.helpKey), OptionalText(neighbour), PRO_B_TRUE, id,
                                menuFile.data());
  }
  auto setIcon = [&] {
    if (command.icon) ProCmdIconSet(id, Text(command.icon));
  };
  auto designate = [&] {
    if (command.designate[0]) {
      ProCmdDesignate(id, Text(command.designate[0]), Text(command.designate[1]), Text(command.designate[2]),
                      menuFile.data());
    }
  };
  if (designateBeforeIcon) {
    designate();
    setIcon();
  } else {
    setIcon();
    designate();
  }
}

int RegisterGroup(const MenuGroup& group) {
  CCfgOption option;
  std::string parentMenu = NarrowOption(option.GetMenubarId());
  std::string neighbour = group.honoursFrontMenuBtn ? NarrowOption(option.GetFrontMenuBtn()) : std::string();
  std::wstring menuFile = group.menuFile;

  int status = AddGroupMenu(group, parentMenu, menuFile);
  if (status != 0) return status;
  for (const CommandDef& command : group.commands) {
    RegisterCommand(command, group.menuId, neighbour, menuFile, group.designateBeforeIcon);
  }
  return 0;
}

}  // namespace

int RegisterBomGroup() { return RegisterGroup(BomGroup()); }

int RegisterParamGroup() { return RegisterGroup(ParamGroup()); }

int RegisterAutoGroup() {
  int status = RegisterGroup(AutoGroup());
  if (status != 0) return status;
  if (AutoSaveStarted == 0) {
    StartAutomationTimers();
    AutoSaveStarted = 1;
  }
  return 0;
}

int RegisterSplButton() {
  // Read like the others, but the button's parent is fixed.
  CCfgOption option;
  option.GetMenubarId();
  std::wstring menuFile = kSplMenuFile;
  std::string noNeighbour;
  RegisterCommand(SplCommand(), kSplParentMenu, noNeighbour, menuFile, false);
  return 0;
}
