#include "Inspection.h"

#include "Host.h"

namespace sim {
namespace {

// A copy of something in the host state, taken with the host held.
template <typename Read>
auto Snapshot(Read read) {
  std::lock_guard hold(TheHost().mutex);
  return read(TheHost().state);
}

}  // namespace

std::vector<MenuItem> MenuBar() {
  return Snapshot([](const HostState& state) { return state.menuBar; });
}

std::vector<CommandInfo> Commands() {
  return Snapshot([](const HostState& state) {
    std::vector<CommandInfo> commands;
    for (const Command* command : state.commands) commands.push_back(command->info);
    return commands;
  });
}

std::vector<WindowInfo> Windows() {
  return Snapshot([](const HostState& state) {
    std::vector<WindowInfo> windows;
    for (const Window& window : state.windows)
      windows.push_back({window.id, Handle(window.model), window.displayed});
    return windows;
  });
}

int CurrentWindow() {
  return Snapshot([](const HostState& state) { return state.currentWindow; });
}

MessageArea Messages() {
  return Snapshot([](const HostState& state) { return state.messages; });
}

std::vector<std::wstring> Macros() {
  return Snapshot([](const HostState& state) { return state.macros; });
}

std::filesystem::path TrailFilePath() {
  return Snapshot([](const HostState& state) { return state.trailFile; });
}

std::map<std::wstring, std::wstring> ConfigOptions() {
  return Snapshot([](const HostState& state) { return state.configOptions; });
}

std::vector<UnloadedModel> UnloadedModels() {
  return Snapshot([](const HostState& state) { return state.unloaded; });
}

std::vector<SessionModel> SessionModels() {
  return Snapshot([](const HostState& state) {
    std::vector<SessionModel> models;
    for (Model* model : state.models) models.push_back({Handle(model), model->fileName, model->modified});
    return models;
  });
}

}  // namespace sim
