// Texts as the host compares and hands them out.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace sim {

std::wstring UpperCase(std::wstring_view text);
std::wstring LowerCase(std::wstring_view text);
bool SameNoCase(std::wstring_view a, std::wstring_view b);

// A path as the host's wide text, through the narrow code page.
std::wstring WideText(const std::filesystem::path& path);
// An absolute, lexically normal directory without a trailing separator.
std::filesystem::path NormalDir(const std::filesystem::path& dir);

// Copies into a caller's buffer of `capacity` characters, cutting what does
// not fit; false when it had to cut.
bool CopyText(wchar_t* dest, size_t capacity, std::wstring_view text);

}  // namespace sim
