#include "PrivateProfile.h"

#include <algorithm>
#include <vector>

#include "ProfileDocument.h"

namespace config {
namespace {

ProfileDocument Load(IniFileIo& io, const std::wstring& file) {
  return ProfileDocument(io.ReadAll(file).value_or(""));
}

std::size_t FillText(std::wstring_view text, std::span<wchar_t> buffer) {
  if (buffer.empty()) return 0;
  std::size_t count = std::min(text.size(), buffer.size() - 1);
  std::copy_n(text.begin(), count, buffer.begin());
  buffer[count] = L'\0';
  return count;
}

std::size_t FillList(const std::vector<std::wstring>& items, std::span<wchar_t> buffer) {
  if (buffer.size() < 2) return FillText(L"", buffer);
  // The last place is kept for the NUL that closes the list.
  const std::size_t listEnd = buffer.size() - 1;
  std::size_t used = 0;
  for (const std::wstring& item : items) {
    if (used + item.size() + 1 > listEnd) {
      used += FillText(item, buffer.subspan(used, listEnd - used));
      if (used < listEnd) ++used;
      buffer[used] = L'\0';
      return buffer.size() - 2;
    }
    used += FillText(item, buffer.subspan(used)) + 1;
  }
  buffer[used] = L'\0';
  return used;
}

}  // namespace

std::size_t ReadProfileString(IniFileIo& io, const std::wstring& file, std::wstring_view section,
                              const wchar_t* key, std::span<wchar_t> buffer) {
  std::vector<ProfileEntry> entries = Load(io, file).Entries(section);
  if (key == nullptr) {
    std::vector<std::wstring> keys;
    for (const ProfileEntry& entry : entries) keys.push_back(entry.key);
    return FillList(keys, buffer);
  }
  auto found = std::ranges::find_if(
      entries, [key](const ProfileEntry& entry) { return SameProfileName(entry.key, key); });
  return FillText(found == entries.end() ? L"" : found->value.value_or(L""), buffer);
}

std::size_t ReadProfileSection(IniFileIo& io, const std::wstring& file, std::wstring_view section,
                               std::span<wchar_t> buffer) {
  std::vector<std::wstring> sectionLines;
  for (const ProfileEntry& entry : Load(io, file).Entries(section)) {
    sectionLines.push_back(entry.value ? entry.key + L"=" + *entry.value : entry.key);
  }
  return FillList(sectionLines, buffer);
}

std::size_t ReadProfileSectionNames(IniFileIo& io, const std::wstring& file, std::span<wchar_t> buffer) {
  return FillList(Load(io, file).SectionNames(), buffer);
}

bool WriteProfileString(IniFileIo& io, const std::wstring& file, std::wstring_view section,
                        std::wstring_view key, std::wstring_view value) {
  ProfileDocument document = Load(io, file);
  document.SetValue(section, key, value);
  return io.WriteAll(file, document.Bytes());
}

}  // namespace config
