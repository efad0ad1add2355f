// The shell's "open" of a file or directory with the desktop's handler.
#pragma once

#include <functional>
#include <string>

namespace platform {

constexpr int kSwShowNormal = 1;
constexpr int kSwShow = 5;

struct ShellOpenRequest {
  std::wstring path;
  int showCommand = kSwShowNormal;
};

using ShellOpenHandler = std::function<bool(const ShellOpenRequest&)>;

// Returns true when the request was handed on.
bool ShellOpen(const std::wstring& path, int showCommand);

// Headless runs and tests record requests instead of launching anything.
// Without a handler, xdg-open is started. Returns the previous handler.
ShellOpenHandler SetShellOpenHandler(ShellOpenHandler handler);

}  // namespace platform
