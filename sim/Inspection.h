// What the simulated host shows: its menu bar, commands, windows, message
// area, queued macros, trail file, configuration options and session. Each
// function answers a copy taken at the moment of the call.
#pragma once

#include "ProObjects.h"
#include "ProUICmd.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace sim {

struct MenuItem {
  enum class Kind { Menu, Button };
  Kind kind = Kind::Menu;
  std::string name{};
  std::string labelKey{};
  std::wstring label{};   // resolved from the message file
  std::string helpKey{};  // buttons only
  std::wstring help{};
  std::string command{};             // buttons only: the bound command's action name
  std::vector<MenuItem> children{};  // menus only, in menu order
};

struct CommandInfo {
  std::string name;
  uiCmdPriority priority = uiCmdPrioDefault;
  bool allowInNonActiveWindow = false;
  bool allowInAccessoryWindow = false;
  std::filesystem::path icon{};  // empty until an icon was found
  bool designated = false;
  std::wstring label{};  // designation texts, resolved
  std::wstring help{};
  std::wstring description{};
};

// The base window has id 0 and always exists; later windows count up from 1.
struct WindowInfo {
  int id = 0;
  ProMdl model = nullptr;  // null: an empty window
  bool displayed = false;
};

struct MessageArea {
  std::vector<std::wstring> lines;  // every line shown, oldest first
  std::wstring currentLine;         // empty after ProMessageClear
  int clearCount = 0;
};

struct SessionModel {
  ProMdl handle = nullptr;
  std::wstring fileName;  // as found on disk or as given to AddModel
  bool modified = false;  // changed in session since loaded or saved
};

std::vector<MenuItem> MenuBar();
std::vector<CommandInfo> Commands();  // in registration order
std::vector<WindowInfo> Windows();
int CurrentWindow();
MessageArea Messages();
std::vector<std::wstring> Macros();  // in the order loaded
std::filesystem::path TrailFilePath();
std::map<std::wstring, std::wstring> ConfigOptions();  // names in lower case
std::vector<SessionModel> SessionModels();             // in the order loaded

// A model that a loaded model refers to, as a component or a drawing's
// solid, but that the host could not find or read: it stays out of session.
struct UnloadedModel {
  std::wstring fileName;  // as the referring model names it
  std::string reason;     // the file or the places searched, and what is wrong
};

// Since StartHost, each file name once, in the order met.
std::vector<UnloadedModel> UnloadedModels();

}  // namespace sim
