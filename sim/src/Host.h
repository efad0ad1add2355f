// The one process-wide host: its session state behind a recursive mutex (a
// toolkit call may come back into the toolkit through a callback), and the
// graveyards that keep every model and command object alive to the end.
#pragma once

#include "CallLog.h"
#include "DetailObjects.h"
#include "FaultInjection.h"
#include "IndexedList.h"
#include "Inspection.h"
#include "MenuBar.h"
#include "Model.h"
#include "OutputOptions.h"
#include "SelectionBuffer.h"
#include "TextPaths.h"

#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

struct Command {
  CommandInfo info;
  uiCmdCmdActFn action = nullptr;
  uiCmdAccessFn access = nullptr;
};

struct Window {
  int id = 0;
  Model* model = nullptr;
  bool displayed = false;
};

struct ScriptedFailure {
  ProError status = PRO_TK_GENERAL_ERROR;
  Times times = Times::Once;
};

// Everything StartHost forgets.
struct HostState {
  std::filesystem::path workingDir;
  std::filesystem::path currentDir;
  std::filesystem::path sessionDir;  // empty before a session is loaded
  std::vector<std::filesystem::path> searchPath;
  IndexedList<Model> models;  // in session, in load order
  std::vector<Window> windows{Window{}};
  int currentWindow = 0;
  std::optional<int> pendingActivation;
  int nextWindowId = 1;
  std::vector<MenuItem> menuBar = HostMenuBar();
  IndexedList<Command> commands;  // in registration order
  MessageArea messages;
  std::vector<std::wstring> macros;
  std::filesystem::path trailFile;
  std::map<std::wstring, std::wstring> configOptions;  // names in lower case
  std::optional<protkrt::TextPaths> textPaths;         // of the registered application
  std::filesystem::path resourcePath;                  // from ProUIResourcepathStore
  std::map<std::string, std::deque<std::optional<std::wstring>>> answers;
  std::map<std::string, ScriptedFailure> failures;
  std::vector<Model*> pendingErase;  // erased when control returns to the host
  std::vector<CallRecord> callLog;
  bool logCalls = false;
  std::vector<Selected> selectionBuffer;
  DetailObjects details;  // table data and note data handed out
  OutputOptions outputOptions;
  std::vector<UnloadedModel> unloaded;
  std::set<std::wstring> unloadedNames;  // of `unloaded`, in lower case

  // Lookups of handles the plug-in hands back: null when the session does
  // not know them, without dereferencing them.
  Model* LiveModel(const void* handle) const;
  Model* LiveSolid(const void* handle) const;
  Command* LiveCommand(const void* id) const;
  Command* FindCommand(std::string_view name) const;
  Window* FindWindow(int id);
  Window* WindowShowing(const Model* model);
  Model* CurrentModel() const;

  // A new line in the message area, which becomes its current line.
  void ShowMessage(std::wstring line);
};

struct Host {
  std::recursive_mutex mutex;
  HostState state;

  Model* Keep(std::unique_ptr<Model> model);
  Command* Keep(std::unique_ptr<Command> command);

 private:
  std::vector<std::unique_ptr<Model>> modelGraveyard_;
  std::vector<std::unique_ptr<Command>> commandGraveyard_;
};

Host& TheHost();

// A model's handle is the model object; the toolkit's solid and drawing
// handles are the same pointer.
inline ProMdl Handle(Model* model) { return model; }

}  // namespace sim
