// Text helpers shared inside the model access layer.
#pragma once

#include <cstddef>
#include <cwchar>
#include <cwctype>
#include <string>

namespace tktext {

// Into one of the host's fixed buffers, cut to fit and always terminated.
template <std::size_t N>
void CopyToBuffer(wchar_t (&buffer)[N], const std::wstring& text) {
  std::wcsncpy(buffer, text.c_str(), N - 1);
  buffer[N - 1] = L'\0';
}

inline std::wstring Upper(std::wstring text) {
  for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(c));
  return text;
}

// Blanks (not tabs) off both ends.
inline std::wstring TrimBlanks(const std::wstring& text) {
  std::size_t first = text.find_first_not_of(L' ');
  if (first == std::wstring::npos) return L"";
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

// What stands behind the last separator. The host hands out backslashes on
// its home system and slashes elsewhere, so both count.
inline std::wstring FileNameOf(const std::wstring& path) {
  return path.substr(path.find_last_of(L"\\/") + 1);
}

// A path holding more than one dot loses everything from its last dot:
// a.prt.3 becomes a.prt. The whole path counts, so a dotted directory costs
// an unversioned file its extension.
inline std::wstring CutLastDotOfSeveral(std::wstring path) {
  std::size_t last = path.rfind(L'.');
  if (path.find(L'.') != last) path.erase(last);
  return path;
}

}  // namespace tktext
