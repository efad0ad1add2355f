// The platform's message box, answered by whoever hosts the plug-in: a real
// dialog in a window, a script in a headless run or a test.
#pragma once

#include <functional>
#include <string>

namespace platform {

// Flags and answers with the system's values.
constexpr unsigned kMbOk = 0;
constexpr unsigned kMbYesNo = 4;
constexpr int kIdOk = 1;
constexpr int kIdYes = 6;
constexpr int kIdNo = 7;

struct MessageBoxRequest {
  void* parent = nullptr;
  std::wstring text;
  std::wstring caption;
  unsigned flags = kMbOk;
};

using MessageBoxHandler = std::function<int(const MessageBoxRequest&)>;

int MessageBox(void* parent, const std::wstring& text, const std::wstring& caption, unsigned flags);

// Without a handler a box is written to standard error and answered with OK
// or, for a question, No. Returns the previous handler.
MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

}  // namespace platform
