#include "Files.h"

#include <algorithm>
#include <cwctype>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "CodePage.h"
#include "FileWrite.h"

namespace fs = std::filesystem;

namespace platform {
namespace {

bool Exists(const fs::path& path) {
  std::error_code ec;
  return fs::exists(fs::symlink_status(path, ec));
}

bool SameNoCase(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(a, b, [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

// The entry of `dir` whose name differs from `name` in case only.
std::optional<fs::path> FindNoCase(const fs::path& dir, const fs::path& name) {
  std::wstring wanted = ToWide(name.string());
  std::error_code ec;
  for (fs::directory_iterator it(dir.empty() ? fs::path(".") : dir, ec), end; !ec && it != end;
       it.increment(ec)) {
    fs::path entry = it->path().filename();
    if (SameNoCase(ToWide(entry.string()), wanted)) return entry;
  }
  return std::nullopt;
}

}  // namespace

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

fs::path ResolvePath(std::wstring_view path) {
  fs::path native = NativePath(path);
  if (native.empty() || Exists(native)) return native;
  fs::path resolved = native.root_path();
  bool matching = true;
  for (const fs::path& part : native.relative_path()) {
    fs::path next = resolved / part;
    if (matching && !part.empty() && part != "." && part != ".." && !Exists(next)) {
      std::optional<fs::path> found = FindNoCase(resolved, part);
      if (found) {
        next = resolved / *found;
      } else {
        matching = false;
      }
    }
    resolved = next;
  }
  return resolved;
}

bool FileExists(std::wstring_view path) {
  std::error_code ec;
  return !path.empty() && fs::exists(ResolvePath(path), ec);
}

bool DirectoryExists(std::wstring_view path) {
  std::error_code ec;
  return !path.empty() && fs::is_directory(ResolvePath(path), ec);
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
  fs::directory_iterator it(ResolvePath(dir), ec);
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

bool CopyFile(std::wstring_view from, std::wstring_view to, bool failIfExists) {
  fs::path source = ResolvePath(from);
  fs::path target = ResolvePath(to);
  std::error_code ec;
  if (!fs::is_regular_file(source, ec)) return false;
  if (failIfExists && Exists(target)) return false;
  std::optional<std::string> bytes = ReadFileBytes(from);
  return bytes && !WriteFileAtomically(target, *bytes);
}

bool CreateDirectory(std::wstring_view path) {
  std::error_code ec;
  return fs::create_directory(ResolvePath(path), ec) && !ec;
}

std::optional<std::string> ReadFileBytes(std::wstring_view path) {
  if (path.empty()) return std::nullopt;
  fs::path resolved = ResolvePath(path);
  std::error_code ec;
  // Opening a directory succeeds on POSIX and fails on Windows.
  if (fs::is_directory(resolved, ec)) return std::nullopt;
  std::ifstream in(resolved, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad()) return std::nullopt;
  return bytes;
}

bool DeletePermanently(std::wstring_view path) {
  std::error_code ec;
  return !path.empty() && fs::remove_all(ResolvePath(path), ec) > 0 && !ec;
}

}  // namespace platform
