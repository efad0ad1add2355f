#include "Text.h"

#include "CodePage.h"

#include <algorithm>
#include <cwctype>

namespace sim {

std::wstring UpperCase(std::wstring_view text) {
  std::wstring out(text);
  std::transform(out.begin(), out.end(), out.begin(), [](wchar_t c) { return std::towupper(c); });
  return out;
}

std::wstring LowerCase(std::wstring_view text) {
  std::wstring out(text);
  std::transform(out.begin(), out.end(), out.begin(), [](wchar_t c) { return std::towlower(c); });
  return out;
}

bool SameNoCase(std::wstring_view a, std::wstring_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

std::wstring WideText(const std::filesystem::path& path) { return platform::ToWide(path.string()); }

std::filesystem::path NormalDir(const std::filesystem::path& dir) {
  std::filesystem::path normal = std::filesystem::absolute(dir).lexically_normal();
  if (!normal.has_filename() && normal.has_relative_path()) normal = normal.parent_path();
  return normal;
}

bool CopyText(wchar_t* dest, size_t capacity, std::wstring_view text) {
  size_t count = std::min(text.size(), capacity - 1);
  std::copy_n(text.begin(), count, dest);
  dest[count] = L'\0';
  return count == text.size();
}

}  // namespace sim
