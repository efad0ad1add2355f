// What the three collections share: the top model, the rule of which
// occurrences count, the top row and the row filter.
#include <algorithm>

#include "TkText.h"
#include "ProArray.h"
#include "ProDrawing.h"
#include "ProFeature.h"
#include "ProMdl.h"
#include "TkBOM.h"

std::wstring TkBOM::Tag(const std::wstring& function, const std::wstring& step) const {
  return L"#QK~TkBOM~" + function + L"~" + step;
}

int TkBOM::GetBomRootMdl(const std::wstring& function, ProMdl& mdl) const {
  mdl = nullptr;
  ProMdl current = nullptr;
  int status = log_.LogStatus(Tag(function, L"ProMdlCurrentGet"), ProMdlCurrentGet(&current));
  if (status != PRO_TK_NO_ERROR) return status;
  int type = 0;
  status = log_.LogStatus(Tag(function, L"GetCurMdlType"), model_.GetCurMdlType(type));
  if (status != PRO_TK_NO_ERROR) return status;
  if (type == CTkModel::kAssembly) {
    mdl = current;
    return PRO_TK_NO_ERROR;
  }
  if (type != CTkModel::kDrawing) return PRO_TK_E_NOT_FOUND;
  ProSolid* solids = nullptr;
  status = log_.LogStatus(Tag(function, L"ProDrawingSolidsCollect"),
                          ProDrawingSolidsCollect(static_cast<ProDrawing>(current), &solids));
  if (status != PRO_TK_NO_ERROR) return status;
  mdl = solids[0];
  ProArrayFree(reinterpret_cast<ProArray*>(&solids));
  return PRO_TK_NO_ERROR;
}

bool TkBOM::IsSuppressed(const ProAsmcomp& feature) const {
  ProFeature queried = feature;
  ProFeatStatus status = PRO_FEAT_ACTIVE;
  return ProFeatureStatusGet(&queried, &status) == PRO_TK_NO_ERROR && status == PRO_FEAT_SUPPRESSED;
}

bool TkBOM::IsExcludedSubtype(ProMdl mdl) const {
  ProMdlsubtype subtype = PROMDLSTYPE_NONE;
  return ProMdlSubtypeGet(mdl, &subtype) == PRO_TK_NO_ERROR && subtype == PROMDLSTYPE_PART_CONCEPT_MODEL;
}

int TkBOM::IsCmpCounted(const TkModelAsmCmp& cmp, int& counted) const {
  bool suppressed = IsSuppressed(cmp.feature);
  bool excluded = IsExcludedSubtype(cmp.mdl);
  counted = suppressed || excluded ? 0 : 1;
  return 0;
}

int TkBOM::IsRowFilteredOut(const BomCollectFilter& filter, const TkModelAsmCmp& cmp) const {
  std::wstring name = tktext::Upper(model_.GetMdlName(cmp.mdl));
  // The value is not upper-cased: a parameter value with small letters in it
  // matches no filter text.
  std::wstring value = filter.key.empty() ? name : param_.GetMdlParamValue(cmp.mdl, filter.key, 2);
  int answer = 0;
  for (const std::wstring& text : filter.values) {
    bool match = value.find(tktext::TrimBlanks(tktext::Upper(text))) == 0;
    answer = filter.keepMatches ? 1 : 0;
    if (match) {
      answer = filter.keepMatches ? 0 : 1;
      break;
    }
  }
  return answer;
}

int TkBOM::StartCollection(const std::wstring& function, int topLevel, std::vector<BomMdl>& rows, ProMdl& top,
                           std::vector<TkModelAsmCmp>& cmps) const {
  rows.clear();
  top = nullptr;
  if (int status = GetBomRootMdl(function, top)) return status;
  rows.push_back(TopRow(top, topLevel));
  return log_.LogStatus(Tag(function, L"GetAllComponent2"), model_.GetAllComponent2(top, cmps));
}

BomMdl TkBOM::TopRow(ProMdl top, int level) const {
  BomMdl row;
  row.mdl = top;
  row.quantity = 1;
  row.level = level;
  TkModelAsmCmp cmp{};
  cmp.mdl = top;
  ProMdlToModelitem(top, &cmp.feature);
  cmp.path.owner = static_cast<ProSolid>(top);
  std::fill(std::begin(cmp.path.comp_id_table), std::end(cmp.path.comp_id_table), -1);
  cmp.path.table_num = 0;
  row.cmps.push_back(cmp);
  return row;
}

void TkBOM::RemoveFilteredRows(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  // Without texts nothing ever matches the filter, in either mode.
  if (filter.values.empty()) return;
  std::vector<bool> goes(rows.size());
  for (size_t i = rows.size(); i-- > 0;) goes[i] = IsRowFilteredOut(filter, rows[i].cmps[0]) == 1;
  size_t kept = 0;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (goes[i]) continue;
    if (kept != i) rows[kept] = std::move(rows[i]);
    ++kept;
  }
  rows.resize(kept);
}
