#include "BomListCells.h"

#include <cstdlib>

#include "CodePage.h"

namespace {
constexpr int kMaxPathDepth = 26;
constexpr int kMaxComponentId = 99999;
constexpr int kParamValueDecimals = 2;
}  // namespace

std::wstring LevelText(const BomMdl& row, const std::wstring& levelSign) {
  if (row.level < 0) return L"";
  if (row.level == 0) return L"0";
  std::wstring text;
  for (int t = 0; t < row.level && t < static_cast<int>(row.BomCmpIds.size()); ++t) {
    if (t > 0) text += levelSign;
    text += std::to_wstring(row.BomCmpIds[t]);
  }
  return text;
}

std::wstring MassText(double mass, int decimals) {
  if (mass == 0.0) return L"0";
  return platform::FormatFixed(mass, decimals);
}

int ParamValueTypeOf(int valueType) {
  switch (valueType) {
    case 1:
      return CTkParam::kInteger;
    case 2:
      return CTkParam::kDouble;
    default:
      return CTkParam::kText;
  }
}

int RowIndexOf(const std::wstring& firstColumnText) {
  return std::atoi(platform::ToNarrow(firstColumnText).c_str()) - 1;
}

bool IsSortParamMissing(int selection, const std::vector<ColInfo>& sortCols) {
  return selection > 0 && selection <= static_cast<int>(sortCols.size()) &&
         sortCols[selection - 1].paramName.empty();
}

bool IsRowShown(const BomMdl& row) {
  if (row.cmps.empty()) return true;
  const ProAsmcomppath& path = row.cmps[0].path;
  return path.table_num < kMaxPathDepth && path.comp_id_table[0] <= kMaxComponentId;
}

CBomListCells::CBomListCells(std::wstring levelSign, int massDecimals)
    : levelSign_(std::move(levelSign)), massDecimals_(massDecimals) {}

std::wstring CBomListCells::CellText(const ColInfo& col, const BomMdl& row, int index) const {
  std::wstring text = KindText(col, row, index);
  return text.empty() ? col.defaultValue : text;
}

std::wstring CBomListCells::KindText(const ColInfo& col, const BomMdl& row, int index) const {
  std::wstring text;
  double mass = 0;
  switch (col.paramType) {
    case PARAMTYPE_MDLPARAM:
      return param_.GetMdlParamValue(row.mdl, col.paramName, kParamValueDecimals);
    case PARAMTYPE_PARENTMDL:
      bom_.GetParentParam(row, col.paramName, text);
      return Logged(L"PARAMTYPE_PARENTMDL", text);
    case PARAMTYPE_INDEX:
      return std::to_wstring(index + 1);
    case PARAMTYPE_LEVEL:
      return LevelText(row, levelSign_);
    case PARAMTYPE_PARTNAME:
      return Logged(L"PARAMTYPE_PARTNAME", model_.GetMdlName(row.mdl));
    case PARAMTYPE_QTY:
      return std::to_wstring(row.quantity);
    case PARAMTYPE_OUTSIZE:
      bom_.GetPartOutSize(row, text, 1, 0, L"X", L"", L"", &cache_);
      return Logged(L"PARAMTYPE_OUTSIZE", text);
    case PARAMTYPE_PARENTNAME:
      bom_.GetParentName(row, text);
      return text;
    case PARAMTYPE_UNITMASS:
      bom_.GetMdlMass(row.mdl, mass, &cache_);
      return MassText(mass, massDecimals_);
    case PARAMTYPE_TOTALMASS:
      bom_.GetMdlMass(row.mdl, mass, &cache_);
      return MassText(mass * row.quantity, massDecimals_);
    default:
      return L"";
  }
}

std::wstring CBomListCells::Logged(const std::wstring& kind, std::wstring text) const {
  log_.LogStatus(L"#QK~DlgBomShow~ShowListCtrl~" + kind, 0);
  return text;
}
