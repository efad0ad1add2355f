// The tools' settings: Params.cfg, MdlExport.cfg and SPL.cfg.
#include "CfgOption.h"

namespace {

const wchar_t kParamsSetDlg[] = L"ParamsSetDlg";
const wchar_t kMatSetDlg[] = L"MatSetDlg";
const wchar_t kMdlName[] = L"MdlName";
const wchar_t kExport[] = L"Export";
const wchar_t kSpl[] = L"SPL";

}  // namespace

int CCfgOption::GetRadioParams() const { return GetInt(GetParamsCfgPath(), kParamsSetDlg, L"RadioParams"); }
void CCfgOption::SetRadioParams(int value) const {
  SetInt(GetParamsCfgPath(), kParamsSetDlg, L"RadioParams", value);
}
int CCfgOption::GetRadioMdl() const { return GetInt(GetParamsCfgPath(), kParamsSetDlg, L"RadioMdl"); }
void CCfgOption::SetRadioMdl(int value) const {
  SetInt(GetParamsCfgPath(), kParamsSetDlg, L"RadioMdl", value);
}
int CCfgOption::GetCheckCurPath() const { return GetInt(GetParamsCfgPath(), kParamsSetDlg, L"CheckCurPath"); }
void CCfgOption::SetCheckCurPath(int value) const {
  SetInt(GetParamsCfgPath(), kParamsSetDlg, L"CheckCurPath", value);
}
int CCfgOption::GetCheckDefValue() const {
  return GetInt(GetParamsCfgPath(), kParamsSetDlg, L"CheckDefValue");
}
void CCfgOption::SetCheckDefValue(int value) const {
  SetInt(GetParamsCfgPath(), kParamsSetDlg, L"CheckDefValue", value);
}
int CCfgOption::GetCheckDir() const { return GetInt(GetParamsCfgPath(), kMatSetDlg, L"CheckDir"); }
void CCfgOption::SetCheckDir(int value) const { SetInt(GetParamsCfgPath(), kMatSetDlg, L"CheckDir", value); }
int CCfgOption::GetShowLoadDir() const { return GetInt(GetParamsCfgPath(), kMatSetDlg, L"ShowLoadDir"); }
int CCfgOption::GetCheckAutoSave() const { return GetInt(GetParamsCfgPath(), kMatSetDlg, L"CheckAutoSave"); }
void CCfgOption::SetCheckAutoSave(int value) const {
  SetInt(GetParamsCfgPath(), kMatSetDlg, L"CheckAutoSave", value);
}
void CCfgOption::GetSPLKeyParams(std::vector<std::wstring>& params) const {
  GetTextList(GetParamsCfgPath(), kMatSetDlg, L"SPLKeyParam", L',', params);
}
void CCfgOption::GetSPLKeys(std::vector<std::wstring>& keys) const {
  GetTextList(GetParamsCfgPath(), kMatSetDlg, L"SPLKey", L',', keys);
}
int CCfgOption::GetSPLKeyPos() const { return GetInt(GetParamsCfgPath(), kMatSetDlg, L"SPLKeyPos"); }
int CCfgOption::GetMatListStyle() const {
  return GetFlag(GetParamsCfgPath(), kMatSetDlg, L"MatListStyle", 0);
}
int CCfgOption::GetRenameDrw() const { return GetInt(GetParamsCfgPath(), kMdlName, L"RenameDrw"); }
void CCfgOption::SetRenameDrw(int value) const { SetInt(GetParamsCfgPath(), kMdlName, L"RenameDrw", value); }

void CCfgOption::GetExportSortCols(std::vector<unsigned>& cols) const {
  GetNumberList(GetMdlExportCfgPath(), kExport, L"SortCol", cols);
}
int CCfgOption::GetExportCreateFolder() const {
  return GetInt(GetMdlExportCfgPath(), kExport, L"ExportCreateFolder");
}
int CCfgOption::GetExportNameUseParam() const {
  return GetInt(GetMdlExportCfgPath(), kExport, L"ExportNameUseParam");
}
void CCfgOption::GetExportNameParams(std::vector<std::wstring>& params) const {
  GetTextList(GetMdlExportCfgPath(), kExport, L"ExportNameParam", L',', params);
}
std::wstring CCfgOption::GetExportNameSign() const {
  return GetText(GetMdlExportCfgPath(), kExport, L"ExportNameSign");
}

void CCfgOption::GetSplDirs(std::vector<std::wstring>& dirs) const {
  GetTextList(GetSplCfgPath(), kSpl, L"Dir", L';', dirs);
}
void CCfgOption::SetSplDirs(const std::vector<std::wstring>& dirs) const {
  std::wstring value;
  for (const std::wstring& dir : dirs) value += dir + L";";
  SetText(GetSplCfgPath(), kSpl, L"Dir", value);
}
int CCfgOption::GetFmlInstBackup() const { return GetFlag(GetSplCfgPath(), kSpl, L"FmlInstBackup", 1); }
void CCfgOption::SetFmlInstBackup(int value) const { SetInt(GetSplCfgPath(), kSpl, L"FmlInstBackup", value); }
