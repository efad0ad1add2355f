// File existence and directory enumeration over Windows-style paths.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The plug-in writes paths with backslashes and sometimes doubles a
// separator; both name the same file here.
std::filesystem::path NativePath(std::wstring_view path);

bool FileExists(std::wstring_view path);
bool DirectoryExists(std::wstring_view path);

struct DirEntry {
  std::wstring name;  // no directory part
  bool isDirectory = false;
};

// Enumerates a pattern such as L"C:\\w\\*.prt.*": the entries of the pattern's
// directory whose names match its last component, with Windows wildcard
// rules ('*', '?', case-insensitive, "*.*" matching every name). "." and ".."
// are included for a pattern that matches them, as the system's enumeration
// does. A missing directory gives no entries.
std::vector<DirEntry> EnumerateDirectory(std::wstring_view pattern);

bool WildcardMatch(std::wstring_view pattern, std::wstring_view name);

}  // namespace platform
