#include "MessageBox.h"

#include <cstdio>
#include <mutex>
#include <utility>

#include "CodePage.h"

namespace platform {
namespace {
std::mutex handlerMutex;
MessageBoxHandler handler;
}  // namespace

int MessageBox(void* parent, const std::wstring& text, const std::wstring& caption, unsigned flags) {
  MessageBoxHandler current;
  {
    std::lock_guard lock(handlerMutex);
    current = handler;
  }
  MessageBoxRequest request{parent, text, caption, flags};
  if (current) return current(request);
  std::fprintf(stderr, "[%s] %s\n", ToNarrow(caption).c_str(), ToNarrow(text).c_str());
  return (flags & 0xF) == kMbYesNo ? kIdNo : kIdOk;
}

MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler newHandler) {
  std::lock_guard lock(handlerMutex);
  return std::exchange(handler, std::move(newHandler));
}

}  // namespace platform
