#include "Host.h"

#include <algorithm>

namespace sim {

Model* HostState::LiveModel(const void* handle) const { return models.Find(handle); }

Model* HostState::LiveSolid(const void* handle) const {
  Model* model = LiveModel(handle);
  return model && model->IsSolid() ? model : nullptr;
}

Command* HostState::LiveCommand(const void* id) const { return commands.Find(id); }

Command* HostState::FindCommand(std::string_view name) const {
  auto found = std::find_if(commands.begin(), commands.end(),
                            [&](const Command* command) { return command->info.name == name; });
  return found == commands.end() ? nullptr : *found;
}

Window* HostState::FindWindow(int id) {
  auto found = std::find_if(windows.begin(), windows.end(), [&](const Window& w) { return w.id == id; });
  return found == windows.end() ? nullptr : &*found;
}

Window* HostState::WindowShowing(const Model* model) {
  auto found =
      std::find_if(windows.begin(), windows.end(), [&](const Window& w) { return w.model == model; });
  return found == windows.end() ? nullptr : &*found;
}

Model* HostState::CurrentModel() const {
  for (const Window& window : windows) {
    if (window.id == currentWindow) return window.model;
  }
  return nullptr;
}

void HostState::ShowMessage(std::wstring line) {
  messages.lines.push_back(line);
  messages.currentLine = std::move(line);
}

Model* Host::Keep(std::unique_ptr<Model> model) {
  modelGraveyard_.push_back(std::move(model));
  return modelGraveyard_.back().get();
}

Command* Host::Keep(std::unique_ptr<Command> command) {
  commandGraveyard_.push_back(std::move(command));
  return commandGraveyard_.back().get();
}

Host& TheHost() {
  static Host host;
  return host;
}

}  // namespace sim
