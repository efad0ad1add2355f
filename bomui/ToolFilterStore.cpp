#include "ToolFilterStore.h"

#include "CodePage.h"
#include "IniEx.h"
#include "TkFile.h"

namespace {
const wchar_t kCurrentSection[] = L"CurPrj";

std::wstring Read(const std::wstring& path, const std::wstring& section, const std::wstring& key) {
  std::wstring value;
  CIniEx().GetValue(path, section, key, value);
  return value;
}
}  // namespace

CToolFilterStore::CToolFilterStore() : path_(CTkFile().GetAppDir() + L"config\\ToolFilter.cfg") {}

void CToolFilterStore::GetSchemes(std::vector<BomFilter>& schemes) const {
  schemes.clear();
  CIniEx ini;
  for (int number = 1;; ++number) {
    BomFilter scheme;
    scheme.Section = L"Sec" + std::to_wstring(number);
    if (ini.GetValue(path_, scheme.Section, L"ProjectName", scheme.ProjectName) != 0) break;
    scheme.RefParamName = Read(path_, scheme.Section, L"RefParamName");
    scheme.FilterKey = Read(path_, scheme.Section, L"FilterKey");
    scheme.IsShow = Read(path_, scheme.Section, L"IsShow") == L"1" ? 1 : 0;
    schemes.push_back(scheme);
  }
}

void CToolFilterStore::SetScheme(const BomFilter& scheme) const {
  CIniEx ini;
  ini.SetValue(path_, scheme.Section, L"ProjectName", scheme.ProjectName, L"");
  ini.SetValue(path_, scheme.Section, L"RefParamName", scheme.RefParamName, L"");
  ini.SetValue(path_, scheme.Section, L"FilterKey", scheme.FilterKey, L"");
  ini.SetValue(path_, scheme.Section, L"IsShow", std::to_wstring(scheme.IsShow), L"");
}

int CToolFilterStore::GetCurrentNumber(const std::wstring& toolKey) const {
  int number = std::atoi(platform::ToNarrow(Read(path_, kCurrentSection, toolKey)).c_str());
  std::vector<BomFilter> schemes;
  GetSchemes(schemes);
  return number >= 1 && number <= static_cast<int>(schemes.size()) ? number : 0;
}

void CToolFilterStore::SetCurrentNumber(const std::wstring& toolKey, int number) const {
  CIniEx().SetValue(path_, kCurrentSection, toolKey, std::to_wstring(number), L"");
}

std::optional<BomFilter> CToolFilterStore::GetCurrent(const std::wstring& toolKey) const {
  int number = GetCurrentNumber(toolKey);
  if (number == 0) return std::nullopt;
  std::vector<BomFilter> schemes;
  GetSchemes(schemes);
  return schemes[number - 1];
}
