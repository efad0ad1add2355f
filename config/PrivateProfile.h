// Our own profile functions: the string, section and section-name reads and
// the string write of INI files, with the system's buffer rules, over files
// reached through an IniFileIo in UTF-8, UTF-16 or GB18030 (see
// platform::DecodeText); a write keeps the file's encoding.
//
// A read fills a caller's buffer as the system does. A single value is cut to
// the buffer's size less one and closed by a NUL. A list puts each item behind
// the last, each closed by a NUL, and closes the list with one more; what does
// not fit is missing, the last item may be cut in two, and the result is then
// the buffer's size less two. A missing file reads as an empty one.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "IniFileIo.h"

namespace config {

// With `key` null, the key names of the section as a list: nothing for a
// section without keys or one that does not exist. Otherwise the key's value,
// or empty text when it is missing. Returns the characters delivered.
std::size_t ReadProfileString(IniFileIo& io, const std::wstring& file, std::wstring_view section,
                              const wchar_t* key, std::span<wchar_t> buffer);

// The section's lines as a list, each "key=value", or the key alone for a
// line without "=".
std::size_t ReadProfileSection(IniFileIo& io, const std::wstring& file, std::wstring_view section,
                               std::span<wchar_t> buffer);

std::size_t ReadProfileSectionNames(IniFileIo& io, const std::wstring& file, std::span<wchar_t> buffer);

// Sets the key, creating the file and appending the section when missing;
// every other line stays as it was. False when the file cannot be written.
bool WriteProfileString(IniFileIo& io, const std::wstring& file, std::wstring_view section,
                        std::wstring_view key, std::wstring_view value);

}  // namespace config
