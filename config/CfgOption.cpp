#include "CfgOption.h"

#include "CodePage.h"
#include "IniEx.h"

CCfgOption::CCfgOption() : optPath(GetOptCfgPath()) {}

std::wstring CCfgOption::GetOptCfgPath() const { return GetAppTextRoot() + L"\\config\\Opt.cfg"; }
std::wstring CCfgOption::GetTblCfgPath() const { return GetAppTextRoot() + L"\\config\\Tbl.cfg"; }
std::wstring CCfgOption::GetRenameTblCfgPath() const { return GetAppTextRoot() + L"\\config\\RenameTbl.cfg"; }
std::wstring CCfgOption::GetExcelCfgPath() const { return GetAppTextRoot() + L"\\config\\Excel.cfg"; }
std::wstring CCfgOption::GetBomFilterCfgPath() const {
  return appDirFile.GetAppDir() + L"\\config\\BomFilter.cfg";
}
std::wstring CCfgOption::GetMdlExportCfgPath() const {
  return appDirFile.GetAppDir() + L"\\config\\MdlExport.cfg";
}
std::wstring CCfgOption::GetMdlExportColCfgPath() const {
  return appDirFile.GetAppDir() + L"\\config\\MdlExportCol.cfg";
}
std::wstring CCfgOption::GetParamsCfgPath() const { return GetAppTextRoot() + L"\\config\\Params.cfg"; }
std::wstring CCfgOption::GetMatColCfgPath() const { return GetAppTextRoot() + L"\\config\\MatCol.cfg"; }
std::wstring CCfgOption::GetSaveAutoCfgPath() const { return GetAppTextRoot() + L"\\config\\SaveAuto.cfg"; }
std::wstring CCfgOption::GetSplCfgPath() const { return GetAppTextRoot() + L"\\config\\SPL.cfg"; }

const std::wstring& CCfgOption::MenuOptPath() {
  if (optPath.empty()) optPath = GetOptCfgPath();
  return optPath;
}

std::wstring CCfgOption::GetMenubarId() { return GetText(MenuOptPath(), L"Menu", L"MenubarId"); }
std::wstring CCfgOption::GetFrontMenuBtn() { return GetText(MenuOptPath(), L"Menu", L"FrontMenuBtn"); }

int CCfgOption::GetSaveAuto() const { return GetFlag(GetSaveAutoCfgPath(), L"DlgSet", L"SaveAuto", 0); }
void CCfgOption::SetSaveAuto(int saveAuto) const {
  SetInt(GetSaveAutoCfgPath(), L"DlgSet", L"SaveAuto", saveAuto);
}
int CCfgOption::GetDelOldVer() const { return GetInt(GetSaveAutoCfgPath(), L"DlgSet", L"DelOldVer"); }
void CCfgOption::SetDelOldVer(int delOldVer) const {
  SetInt(GetSaveAutoCfgPath(), L"DlgSet", L"DelOldVer", delOldVer);
}
int CCfgOption::GetSaveAutoTime() const { return GetInt(GetSaveAutoCfgPath(), L"DlgSet", L"Time", 10); }
void CCfgOption::SetSaveAutoTime(int minutes) const {
  SetInt(GetSaveAutoCfgPath(), L"DlgSet", L"Time", minutes);
}
int CCfgOption::GetIsSaveWrkDir() const { return GetInt(GetSaveAutoCfgPath(), L"WrkDir", L"IsSaveWrkDir"); }
std::wstring CCfgOption::GetWrkDir() const { return GetText(GetSaveAutoCfgPath(), L"WrkDir", L"Dir"); }
void CCfgOption::SetWrkDir(const std::wstring& dir) const {
  SetText(GetSaveAutoCfgPath(), L"WrkDir", L"Dir", dir);
}

std::wstring CCfgOption::GetText(const std::wstring& path, const std::wstring& section,
                                 const std::wstring& key, const std::wstring& emptyDefault) {
  std::wstring text;
  CIniEx().GetValue(path, section, key, text);
  return text.empty() ? emptyDefault : text;
}

int CCfgOption::GetInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                       int emptyDefault) {
  std::wstring text = GetText(path, section, key);
  return text.empty() ? emptyDefault : platform::WideToInt(text);
}

int CCfgOption::GetFlag(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                        int defaultValue) {
  std::wstring text = GetText(path, section, key);
  if (text == L"1") return 1;
  if (text == L"0") return 0;
  return defaultValue;
}

void CCfgOption::SetInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                        int value, const std::wstring& comment) {
  CIniEx().SetValue(path, section, key, std::to_wstring(value), comment);
}

void CCfgOption::SetText(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                         const std::wstring& value) {
  CIniEx().SetValue(path, section, key, value, L"");
}

void CCfgOption::GetTextList(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                             wchar_t separator, std::vector<std::wstring>& items) const {
  textFile.SplitText(GetText(path, section, key), items, separator, 1);
}

void CCfgOption::GetNumberList(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                               std::vector<unsigned>& numbers) {
  numbers.clear();
  std::wstring text = GetText(path, section, key);
  for (size_t start = 0; start < text.size();) {
    size_t comma = text.find(L',', start);
    std::wstring piece = text.substr(start, comma == std::wstring::npos ? std::wstring::npos : comma - start);
    numbers.push_back(static_cast<unsigned>(platform::WideToInt(piece)));
    if (comma == std::wstring::npos) break;
    start = comma + 1;
  }
}
