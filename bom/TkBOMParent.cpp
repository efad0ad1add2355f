// The parent of a row's first occurrence: its name and its parameters.
#include "ProAsmcomp.h"
#include "TkBOM.h"

int TkBOM::GetParentName(const BomMdl& row, std::wstring& text) const {
  const std::wstring function = L"GetParentName";
  text.clear();
  if (row.cmps.empty() || row.cmps[0].path.table_num < 1) return 0;
  const ProAsmcomppath& path = row.cmps[0].path;
  if (!path.owner) return PRO_TK_BAD_INPUTS;
  log_.LogStatus(Tag(function, L"In"), 0);
  ProIdTable ids;
  std::copy(std::begin(path.comp_id_table), std::end(path.comp_id_table), ids);
  ProAsmcomppath parentPath{};
  if (int status = log_.LogStatus(Tag(function, L"ProAsmcomppathInit"),
                                  ProAsmcomppathInit(path.owner, ids, path.table_num - 1, &parentPath)))
    return status;
  ProMdl parent = nullptr;
  if (int status =
          log_.LogStatus(Tag(function, L"ProAsmcomppathMdlGet"), ProAsmcomppathMdlGet(&parentPath, &parent)))
    return status;
  text = model_.GetMdlName(parent);
  return 0;
}

int TkBOM::GetParentParam(const BomMdl& row, const std::wstring& paramName, std::wstring& text) const {
  const std::wstring function = L"GetParentParam";
  text.clear();
  if (row.cmps.empty() || row.cmps[0].path.table_num < 1) return 0;
  if (row.cmps[0].path.table_num > PRO_MAX_ASSEM_LEVEL) return PRO_TK_BAD_INPUTS;
  ProAsmcomppath path = row.cmps[0].path;
  --path.table_num;
  path.comp_id_table[path.table_num] = -1;
  ProMdl parent = path.owner;
  if (path.table_num >= 1) {
    if (ProError status = ProAsmcomppathMdlGet(&path, &parent)) return status;
  }
  log_.LogStatus(Tag(function, L"GetParentMdl"), 0);
  text = param_.GetMdlParamValue(parent, paramName, 2);
  log_.LogStatus(Tag(function, L"GetParentMdlParam: " + paramName + L" = " + text), 0);
  return 0;
}
