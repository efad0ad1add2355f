// Files and directories over Windows-style paths.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The plug-in writes paths with backslashes and sometimes doubles a
// separator; both name the same file here. Purely lexical.
std::filesystem::path NativePath(std::wstring_view path);

// NativePath, then, on a file system that tells case apart, each component
// that does not exist as written takes the spelling of an entry of its
// directory that differs in case only, so that \template\bom.xls finds
// BOM.xls as on the plug-in's home system. Components that match nothing
// stay as written, so the result also names a file about to be created.
// Every file service here goes through it.
std::filesystem::path ResolvePath(std::wstring_view path);

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

// The file's bytes; nullopt when it is no readable file, a directory included.
std::optional<std::string> ReadFileBytes(std::wstring_view path);

// As the system's CopyFile: false when `from` is no readable file, or when
// `to` exists and `failIfExists` is set; otherwise `to` is replaced as
// WriteFileAtomically replaces it.
bool CopyFile(std::wstring_view from, std::wstring_view to, bool failIfExists);
// As the system's CreateDirectory: one level; false when the directory
// exists already or its parent does not.
bool CreateDirectory(std::wstring_view path);
// Removes a file, or a directory with everything below it, for good; false
// when there was nothing to remove or it could not be removed.
bool DeletePermanently(std::wstring_view path);

}  // namespace platform
