// The list dialog's remembered choices in Opt.cfg and the column table in
// Tbl.cfg.
#include "CfgOption.h"

#include "CodePage.h"
#include "IniEx.h"

#include <algorithm>

namespace {

const wchar_t kBom[] = L"BOM";
const wchar_t kCol[] = L"Col";

const ParamTypeName kParamTypeNames[] = {
    {PARAMTYPE_MDLPARAM, L"普通模型参数"},
    {PARAMTYPE_PARENTMDL, L"父模型参数"},
    {PARAMTYPE_INDEX, L"序号"},
    {PARAMTYPE_LEVEL, L"层级"},
    {PARAMTYPE_PARTNAME, L"零件名称"},
    {PARAMTYPE_QTY, L"零件数量"},
    {PARAMTYPE_OUTSIZE, L"外形尺寸"},
    {PARAMTYPE_PARENTNAME, L"父元件名称"},
    {PARAMTYPE_UNITMASS, L"零件单重"},
    {PARAMTYPE_TOTALMASS, L"零件总重"},
};

}  // namespace

int CCfgOption::GetLevelType() const {
  int levelType = GetInt(optPath, kBom, L"LevelType");
  return levelType >= 0 && levelType <= 2 ? levelType : 0;
}
void CCfgOption::SetLevelType(int levelType) const {
  SetInt(optPath, kBom, L"LevelType", levelType, L"层级, 0表示单层清单, 1表示多层清单,2表示汇总清单");
}
int CCfgOption::GetExportExcel() const { return GetInt(optPath, kBom, L"ExportExcel"); }
void CCfgOption::SetExportExcel(int exportExcel) const {
  SetInt(optPath, kBom, L"ExportExcel", exportExcel, L"输出清单到Excel");
}
int CCfgOption::GetExportText() const { return GetInt(optPath, kBom, L"ExportText"); }
void CCfgOption::SetExportText(int exportText) const {
  SetInt(optPath, kBom, L"ExportText", exportText, L"输出清单到Text");
}
int CCfgOption::GetExportCurMdl() const { return GetInt(optPath, kBom, L"ExportCurMdl"); }
void CCfgOption::SetExportCurMdl(int exportCurMdl) const {
  SetInt(optPath, kBom, L"ExportCurMdl", exportCurMdl, L"输出清单到当前模型");
}

int CCfgOption::GetColInfos(std::vector<ColInfo>& colInfos) const {
  colInfos.clear();
  std::vector<std::wstring> keys, values, comments;
  CIniEx().GetSection(GetTblCfgPath(), kCol, keys, values, comments);
  if (keys.size() != values.size()) return 0;
  for (size_t i = 0; i < keys.size(); ++i) {
    ColInfo colInfo;
    ParseColInfo(keys[i], values[i], colInfo);
    colInfos.push_back(colInfo);
  }
  return 1;
}

int CCfgOption::ParseColInfo(const std::wstring& key, const std::wstring& value, ColInfo& colInfo) const {
  colInfo = ColInfo{};
  colInfo.id = platform::WideToInt(key);
  if (value.empty()) return 0;
  std::vector<std::wstring> fields;
  textFile.SplitText(value, fields, L';', 1);
  fields.resize(std::max<size_t>(fields.size(), 9));
  colInfo.name = fields[0];
  colInfo.width = platform::WideToInt(fields[1]);
  colInfo.editType = platform::WideToInt(fields[2]);
  colInfo.comboItems = fields[3];
  colInfo.defaultValue = fields[4];
  colInfo.paramName = fields[5];
  colInfo.paramType = platform::WideToInt(fields[6]);
  colInfo.valueType = platform::WideToInt(fields[7]);
  colInfo.show = platform::WideToInt(fields[8]);
  return 1;
}

int CCfgOption::SetColInfo(const ColInfo& colInfo) const {
  std::wstring line = colInfo.name + L";" + std::to_wstring(colInfo.width) + L";" +
                      std::to_wstring(colInfo.editType) + L";" + colInfo.comboItems + L";" +
                      colInfo.defaultValue + L";" + colInfo.paramName + L";" +
                      std::to_wstring(colInfo.paramType) + L";" + std::to_wstring(colInfo.valueType) + L";" +
                      std::to_wstring(colInfo.show);
  SetText(GetTblCfgPath(), kCol, std::to_wstring(colInfo.id), line);
  return 1;
}

int CCfgOption::GetParamTypeNames(std::vector<ParamTypeName>& names) const {
  names.assign(std::begin(kParamTypeNames), std::end(kParamTypeNames));
  return 1;
}

int CCfgOption::ColLetterToIndex(const std::wstring& text) const {
  if (text.size() != 1) return -1;
  wchar_t letter = text[0];
  if (letter >= L'A' && letter <= L'Z') return letter - L'A' + 1;
  if (letter >= L'a' && letter <= L'z') return letter - L'a' + 1;
  return -1;
}
