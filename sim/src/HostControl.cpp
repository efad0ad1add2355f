#include "HostControl.h"

#include "CodePage.h"
#include "Files.h"
#include "Host.h"
#include "ModelFiles.h"
#include "Session.h"
#include "SessionFile.h"
#include "Text.h"
#include "Trail.h"

#include <nlohmann/json.hpp>

namespace sim {
namespace {

std::unique_lock<std::recursive_mutex> Hold() { return std::unique_lock(TheHost().mutex); }

void ShowInBaseWindow(HostState& state, Model* model) {
  Window* base = state.FindWindow(0);
  base->model = model;
  base->displayed = model != nullptr;
  state.currentWindow = 0;
}

}  // namespace

void StartHost(const HostOptions& options) {
  auto hold = Hold();
  HostState& state = TheHost().state;
  state = HostState{};
  state.workingDir = state.currentDir = NormalDir(options.workingDir);
  state.trailFile = NextTrailFile(state.workingDir);
  StartTrail(state.trailFile);
}

ProError LoadSession(const std::filesystem::path& dir, std::string& error) {
  std::error_code ec;
  if (!std::filesystem::is_directory(dir, ec)) {
    error = dir.string() + ": no such directory";
    return PRO_TK_E_NOT_FOUND;
  }
  if (std::filesystem::is_empty(dir, ec)) {
    error = dir.string() + ": the directory is empty, it holds no session.json";
    return PRO_TK_E_NOT_FOUND;
  }
  auto hold = Hold();
  Host& host = TheHost();
  HostState& state = host.state;
  SessionFile session;
  std::filesystem::path file = dir / "session.json";
  if (ProError status = ReadSessionFile(file, session, error)) return status;
  state.sessionDir = NormalDir(dir);
  for (const std::wstring& entry : session.searchPath) {
    state.searchPath.push_back(NormalDir(state.sessionDir / platform::NativePath(entry)));
  }
  for (const auto& [name, value] : session.configOptions)
    state.configOptions[LowerCase(name)] = SessionOptionValue(name, value, state.sessionDir);

  ProError first = PRO_TK_NO_ERROR;
  Loader loader(host);
  auto load = [&](const std::wstring& fileName, const std::string& key) {
    LoadResult loaded = loader.Load(fileName, PRO_MDLFILE_UNUSED);
    if (first == PRO_TK_NO_ERROR && loaded.status != PRO_TK_NO_ERROR) {
      first = loaded.status;
      error = file.string() + ": key " + key + ": " + loaded.error;
    }
    return loaded.model;
  };
  for (size_t i = 0; i < session.open.size(); ++i) load(session.open[i], "/open/" + std::to_string(i));
  if (session.current) {
    if (Model* current = load(*session.current, "/current")) ShowInBaseWindow(state, current);
  }
  return first;
}

ProError LoadSession(const std::filesystem::path& dir) {
  std::string error;
  return LoadSession(dir, error);
}

void RegisterApplication(const std::wstring& textDir, int language) {
  auto hold = Hold();
  TheHost().state.textPaths = protkrt::BuildTextPaths(textDir, language);
}

ProMdl AddModel(const std::wstring& fileName, const ModelDef& def) {
  auto hold = Hold();
  return Handle(Loader(TheHost()).Add(fileName, def));
}

ProMdl OpenModel(const std::wstring& fileName) {
  auto hold = Hold();
  return Handle(LoadModel(TheHost(), fileName, PRO_MDLFILE_UNUSED).model);
}

bool SetCurrentModel(ProMdl model) {
  auto hold = Hold();
  HostState& state = TheHost().state;
  Model* live = state.LiveModel(model);
  if (model && !live) return false;
  ShowInBaseWindow(state, live);
  return true;
}

std::optional<std::filesystem::path> WriteModelCopy(ProMdl model, const std::filesystem::path& dir) {
  auto hold = Hold();
  const Model* live = TheHost().state.LiveModel(model);
  if (!live) return std::nullopt;
  std::filesystem::path file =
      dir / platform::NativePath(VersionedFileName(*live, HighestVersionIn(dir, *live) + 1));
  if (!WriteModelFile(file, SavedDocument(*live))) return std::nullopt;
  return file;
}

std::optional<std::string> ModelState(ProMdl model) {
  auto hold = Hold();
  const Model* live = TheHost().state.LiveModel(model);
  if (!live) return std::nullopt;
  return nlohmann::json::parse(SavedDocument(*live)).dump();
}

void ReturnToHost() {
  auto hold = Hold();
  HostState& state = TheHost().state;
  if (state.pendingActivation && state.FindWindow(*state.pendingActivation)) {
    state.currentWindow = *state.pendingActivation;
  }
  state.pendingActivation.reset();
  for (Model* erased : state.pendingErase) {
    state.models.Erase(erased);
    for (Window& window : state.windows) {
      if (window.model != erased) continue;
      window.model = nullptr;
      window.displayed = false;
    }
  }
  state.pendingErase.clear();
}

// Callbacks run without the host held, as the host's own UI loop calls them.
std::optional<uiCmdAccessState> Access(const std::string& actionName) {
  uiCmdAccessFn access = nullptr;
  {
    auto hold = Hold();
    const Command* command = TheHost().state.FindCommand(actionName);
    if (!command) return std::nullopt;
    access = command->access;
  }
  return access ? access(MODE_BLIND) : ACCESS_AVAILABLE;
}

bool RunAction(const std::string& actionName) {
  Command* command = nullptr;
  {
    auto hold = Hold();
    command = TheHost().state.FindCommand(actionName);
    if (!command || !command->action) return false;
  }
  command->action(command, nullptr, nullptr);
  ReturnToHost();
  return true;
}

void PushAnswer(const std::string& callName, std::optional<std::wstring> answer) {
  auto hold = Hold();
  TheHost().state.answers[callName].push_back(std::move(answer));
}

std::optional<std::wstring> TakeAnswer(const std::string& callName) {
  auto hold = Hold();
  auto& queue = TheHost().state.answers[callName];
  if (queue.empty()) return std::nullopt;
  std::optional<std::wstring> answer = std::move(queue.front());
  queue.pop_front();
  return answer;
}

}  // namespace sim
