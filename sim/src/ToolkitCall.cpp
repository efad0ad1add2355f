#include "ToolkitCall.h"

#include "CallHold.h"
#include "CodePage.h"

namespace sim {

LogArg::LogArg(const char* text) : value_(std::string(text ? text : "")) {}
LogArg::LogArg(const wchar_t* text) : value_(text ? platform::ToNarrow(text) : std::string()) {}
LogArg::LogArg(std::string text) : value_(std::move(text)) {}
LogArg::LogArg(int value) : value_(std::to_string(value)) {}
LogArg::LogArg(ModelRef model) : value_(model) {}
LogArg::LogArg(CommandRef command) : value_(command) {}

std::string LogArg::Text(const HostState& state) const {
  if (auto* text = std::get_if<std::string>(&value_)) return *text;
  if (auto* model = std::get_if<ModelRef>(&value_)) {
    if (!model->handle) return "";
    const Model* live = state.LiveModel(model->handle);
    return live ? platform::ToNarrow(live->def.name) : "?";
  }
  const Command* command = state.LiveCommand(std::get<CommandRef>(value_).id);
  return command ? command->info.name : "?";
}

ToolkitCall::ToolkitCall(const char* name, std::initializer_list<LogArg> args)
    : host_(TheHost()), lock_(host_.mutex, std::defer_lock) {
  WaitWhileHeld(name);
  lock_.lock();
  HostState& s = host_.state;
  if (s.logCalls) {
    CallRecord record{name, {}};
    record.args.reserve(args.size());
    for (const LogArg& arg : args) record.args.push_back(arg.Text(s));
    s.callLog.push_back(std::move(record));
  }

  auto failure = s.failures.find(name);
  if (failure == s.failures.end()) return;
  failed_ = true;
  status_ = failure->second.status;
  if (failure->second.times == Times::Once) s.failures.erase(failure);
}

}  // namespace sim
