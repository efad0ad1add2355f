#include "Files.h"

#include <algorithm>
#include <cwctype>
#include <system_error>

#include "CodePage.h"

namespace fs = std::filesystem;

namespace platform {

fs::path NativePath(std::wstring_view path) {
  std::wstring out;
  out.reserve(path.size());
  for (wchar_t c : path) {
    if (c == L'\\') c = L'/';
    if (c == L'/' && !out.empty() && out.back() == L'/') continue;
    out += c;
  }
  return fs::path(ToNarrow(out));
}

bool FileExists(std::wstring_view path) {
  std::error_code ec;
  return !path.empty() && fs::exists(NativePath(path), ec);
}

bool DirectoryExists(std::wstring_view path) {
  std::error_code ec;
  return !path.empty() && fs::is_directory(NativePath(path), ec);
}

bool WildcardMatch(std::wstring_view pattern, std::wstring_view name) {
  // "*.*" is the system's "every name", dot or not.
  if (pattern == L"*.*" || pattern == L"*") return true;
  size_t p = 0, n = 0, starP = std::wstring_view::npos, starN = 0;
  auto same = [](wchar_t a, wchar_t b) { return std::towlower(a) == std::towlower(b); };
  while (n < name.size()) {
    if (p < pattern.size() && (pattern[p] == L'?' || same(pattern[p], name[n]))) {
      ++p;
      ++n;
    } else if (p < pattern.size() && pattern[p] == L'*') {
      starP = p++;
      starN = n;
    } else if (starP != std::wstring_view::npos) {
      p = starP + 1;
      n = ++starN;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == L'*') ++p;
  return p == pattern.size();
}

std::vector<DirEntry> EnumerateDirectory(std::wstring_view pattern) {
  std::wstring normalized(pattern);
  std::replace(normalized.begin(), normalized.end(), L'\\', L'/');
  size_t slash = normalized.find_last_of(L'/');
  std::wstring dir = slash == std::wstring::npos ? L"." : normalized.substr(0, slash);
  if (dir.empty()) dir = L"/";
  std::wstring mask = slash == std::wstring::npos ? normalized : normalized.substr(slash + 1);

  std::vector<DirEntry> entries;
  std::error_code ec;
  fs::directory_iterator it(NativePath(dir), ec);
  if (ec) return entries;
  for (const wchar_t* dot : {L".", L".."}) {
    if (WildcardMatch(mask, dot)) entries.push_back({dot, true});
  }
  for (; it != fs::directory_iterator(); it.increment(ec)) {
    if (ec) break;
    std::wstring name = ToWide(it->path().filename().string());
    if (!WildcardMatch(mask, name)) continue;
    std::error_code typeEc;
    entries.push_back({name, it->is_directory(typeEc)});
  }
  return entries;
}

}  // namespace platform
