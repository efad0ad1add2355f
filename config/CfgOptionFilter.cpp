// The filter schemes of the bill of materials in BomFilter.cfg.
#include "CfgOption.h"

#include "IniEx.h"

// The number of sections bounds the scheme numbers read, so a gap in the
// numbering hides the schemes behind it.
void CCfgOption::GetBomFilters(std::vector<BomFilter>& filters) const {
  filters.clear();
  std::wstring path = GetBomFilterCfgPath();
  CIniEx ini;
  std::vector<std::wstring> sections;
  ini.GetSectionNames(path, sections);
  for (size_t i = 1; i <= sections.size(); ++i) {
    BomFilter filter;
    filter.Section = L"Sec" + std::to_wstring(i);
    if (ini.GetValue(path, filter.Section, L"ProjectName", filter.ProjectName) != 0) continue;
    ini.GetValue(path, filter.Section, L"RefParamName", filter.RefParamName);
    ini.GetValue(path, filter.Section, L"FilterKey", filter.FilterKey);
    std::wstring isShow;
    ini.GetValue(path, filter.Section, L"IsShow", isShow);
    filter.IsShow = isShow == L"1" ? 1 : 0;
    filters.push_back(filter);
  }
}

void CCfgOption::SetBomFilter(const BomFilter& filter) const {
  std::wstring path = GetBomFilterCfgPath();
  SetText(path, filter.Section, L"ProjectName", filter.ProjectName);
  SetText(path, filter.Section, L"RefParamName", filter.RefParamName);
  SetText(path, filter.Section, L"FilterKey", filter.FilterKey);
  SetInt(path, filter.Section, L"IsShow", filter.IsShow);
}

std::wstring CCfgOption::GetModelNameKey() const { return L"模型名称"; }
