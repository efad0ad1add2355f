// The entry of every toolkit function: holds the host for the call, appends
// the call to the log while logging is on and tells whether a scripted
// failure answers it.
#pragma once

#include "Host.h"

#include <initializer_list>
#include <mutex>
#include <string>
#include <variant>

namespace sim {

// Handles are logged by what they name, which needs the host held first.
struct ModelRef {
  const void* handle;
};
struct CommandRef {
  const void* id;
};

class LogArg {
 public:
  LogArg(const char* text);
  LogArg(const wchar_t* text);
  LogArg(std::string text);
  LogArg(int value);
  LogArg(ModelRef model);
  LogArg(CommandRef command);

  std::string Text(const HostState& state) const;

 private:
  std::variant<std::string, ModelRef, CommandRef> value_;
};

class ToolkitCall {
 public:
  ToolkitCall(const char* name, std::initializer_list<LogArg> args = {});

  bool Failed() const { return failed_; }
  ProError Status() const { return status_; }
  Host& host() { return host_; }
  HostState& state() { return host_.state; }
  // For callbacks into the plug-in, which may wait for another thread that
  // calls the toolkit.
  void Unlock() { lock_.unlock(); }

 private:
  Host& host_;
  std::unique_lock<std::recursive_mutex> lock_;
  bool failed_ = false;
  ProError status_ = PRO_TK_NO_ERROR;
};

}  // namespace sim
