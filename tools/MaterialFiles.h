// Material files as the batch material tool names and finds them. Paths are
// cut at either separator: the host and the file chooser may give slashes
// where Windows has backslashes.
#pragma once

#include <string>

// The first file below `directory` (every version; a directory's own files
// before its subdirectories') whose name before its first dot is `name`,
// case ignored. Its host path in upper case, empty when there is none.
std::wstring FindMaterialFile(const std::wstring& directory, const std::wstring& name);

// The material a chosen file stands for: the file name up to its first dot,
// upper-cased.
std::wstring MaterialNameOfFile(const std::wstring& path);

// The file of a material picked from the list: directory + "\" + name + ".mtl".
std::wstring MaterialFilePath(const std::wstring& directory, const std::wstring& name);

// The path up to its last separator; empty for a bare file name.
std::wstring MaterialFileDir(const std::wstring& path);
