// The extra list columns of the rename, material and export tools.
#include "CfgOption.h"

#include "CodePage.h"
#include "IniEx.h"

namespace {

struct ColumnKeys {
  std::wstring title, width, paramName, show, owner;
};

// Each section of the file in order, its keys read in the order of the
// column records.
template <typename Visit>
void ForEachColumn(const std::wstring& path, bool withOwner, Visit visit) {
  CIniEx ini;
  std::vector<std::wstring> sections;
  ini.GetSectionNames(path, sections);
  for (const std::wstring& section : sections) {
    ColumnKeys keys;
    ini.GetValue(path, section, L"ColName", keys.title);
    ini.GetValue(path, section, L"ColWidth", keys.width);
    ini.GetValue(path, section, L"ParamName", keys.paramName);
    ini.GetValue(path, section, L"Show", keys.show);
    if (withOwner) ini.GetValue(path, section, L"ParamOwner", keys.owner);
    visit(keys);
  }
}

}  // namespace

void CCfgOption::GetRenameCols(std::vector<MdlRenameCol>& cols) const {
  cols.clear();
  ForEachColumn(GetRenameTblCfgPath(), true, [&](const ColumnKeys& keys) {
    if (keys.show == L"0") return;
    cols.push_back(
        {keys.title, platform::WideToInt(keys.width), keys.paramName, platform::WideToInt(keys.owner)});
  });
}

void CCfgOption::GetMatCols(std::vector<ParamCol>& cols) const {
  cols.clear();
  ForEachColumn(GetMatColCfgPath(), false, [&](const ColumnKeys& keys) {
    if (platform::WideToInt(keys.show) == 0) return;
    cols.push_back({keys.title, platform::WideToInt(keys.width), keys.paramName, true});
  });
}

void CCfgOption::GetMdlExportCols(std::vector<MdlExportCol>& cols) const {
  cols.clear();
  ForEachColumn(GetMdlExportColCfgPath(), false, [&](const ColumnKeys& keys) {
    int show = platform::WideToInt(keys.show);
    if (show == 0) return;
    cols.push_back({keys.title, platform::WideToInt(keys.width), keys.paramName, show});
  });
}
