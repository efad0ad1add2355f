// The platform's dialog that asks for a file to open, answered by whoever
// hosts the plug-in: a file chooser in a window, a script in a headless run
// or a test.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace platform {

struct FileOpenRequest {
  void* parent = nullptr;
  // In the system's form: pairs of a description and its patterns, each
  // closed by "|", the list by a second "|": "Worksheet Files (*.xls)|*.xls||".
  std::wstring filter;
  std::wstring initialDir;  // empty: wherever the chooser starts by itself
};

// The chosen file's path, or nothing when the user cancelled.
using FileOpenHandler = std::function<std::optional<std::wstring>(const FileOpenRequest&)>;

std::optional<std::wstring> ChooseFileToOpen(void* parent, const std::wstring& filter,
                                             const std::wstring& initialDir = L"");

// Without a handler nobody can answer, and every request is cancelled.
// Returns the previous handler.
FileOpenHandler SetFileOpenHandler(FileOpenHandler handler);

}  // namespace platform
