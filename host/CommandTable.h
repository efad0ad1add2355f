// The plug-in's menus and commands: what each registration adds, in order.
#pragma once

#include <span>

#include "ProUICmd.h"

// When a command may run, asked by the host at each menu refresh.
enum class AccessRule {
  Always,
  AssemblyOrDrawing,  // a current model that is an assembly or a drawing
  AnyModel,           // a current model of any type
  Assembly,           // a current assembly
  AssemblyOrPart,     // a current assembly or part
};

struct CommandDef {
  const char* action;        // the host's action name, also used by trail files and toolbars
  const char* button;        // push button id, or null for a command without a button
  const char* labelKey;      // with `button`
  const char* helpKey;       // with `button`
  const char* icon;          // or null
  const char* designate[3];  // label, help and description keys, or nulls
  AccessRule access;
  bool windowFlags;  // allowed in non-active and accessory windows
  uiCmdCmdActFn run;
};

struct MenuGroup {
  const char* menuId;
  const char* labelKey;
  const wchar_t* menuFile;
  bool designateBeforeIcon;
  bool honoursFrontMenuBtn;
  std::span<const CommandDef> commands;
};

const MenuGroup& BomGroup();
const MenuGroup& ParamGroup();
const MenuGroup& AutoGroup();

// The library button has no menu of its own: it goes into the parameter menu.
constexpr const char* kSplParentMenu = "ParamMenuBarId";
constexpr const wchar_t* kSplMenuFile = L"UserLibMenu.txt";
const CommandDef& SplCommand();

uiCmdAccessFn AccessCallback(AccessRule rule);
