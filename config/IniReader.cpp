#include "IniReader.h"

#include <array>
#include <cstddef>
#include <cwchar>

#include "PrivateProfile.h"

namespace {

// The buffer sizes the settings were always read with; the cuts they make
// are part of how a file reads.
constexpr std::size_t kKeyNamesProbeSize = 90;
constexpr std::size_t kValueSize = 255;
constexpr std::size_t kListSize = 2000;

using ListBuffer = std::array<wchar_t, kListSize>;

void AssignListItems(const ListBuffer& list, std::vector<std::wstring>& items) {
  items.clear();
  for (const wchar_t* item = list.data(); *item != L'\0'; item += std::wcslen(item) + 1) {
    items.emplace_back(item);
  }
}

}  // namespace

CIniReader::CIniReader(config::IniFileIo& io) : fileIo(&io) {}

void CIniReader::SetIniFile(std::wstring path) { fileName = std::move(path); }

int CIniReader::SectionExists(const std::wstring& section) {
  std::array<wchar_t, kKeyNamesProbeSize> keyNames{};
  lastResult = static_cast<int>(config::ReadProfileString(*fileIo, fileName, section, nullptr, keyNames));
  return lastResult > 0 ? 1 : 0;
}

std::wstring CIniReader::GetKeyValue(const std::wstring& key, const std::wstring& section) {
  std::array<wchar_t, kValueSize> value{};
  lastResult = static_cast<int>(config::ReadProfileString(*fileIo, fileName, section, key.c_str(), value));
  return value.data();
}

int CIniReader::SetKey(const std::wstring& value, const std::wstring& key, const std::wstring& section) {
  lastResult = config::WriteProfileString(*fileIo, fileName, section, key, value) ? 1 : 0;
  return lastResult;
}

const std::vector<std::wstring>& CIniReader::GetSectionNames() {
  ListBuffer names{};
  lastResult = static_cast<int>(config::ReadProfileSectionNames(*fileIo, fileName, names));
  AssignListItems(names, sectionNameList);
  return sectionNameList;
}

const std::vector<std::wstring>& CIniReader::GetSectionData(const std::wstring& section) {
  ListBuffer data{};
  lastResult = static_cast<int>(config::ReadProfileSection(*fileIo, fileName, section, data));
  AssignListItems(data, sectionDataList);
  return sectionDataList;
}
