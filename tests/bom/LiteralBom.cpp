#include "LiteralBom.h"

#include <algorithm>
#include <cwctype>

#include "ProAsmcomp.h"
#include "ProMdl.h"

namespace {

ProAsmcomppath Shortened(ProAsmcomppath path) {
  --path.table_num;
  if (path.table_num >= 0) path.comp_id_table[path.table_num] = -1;
  return path;
}

BomMdl NewRow(const TkModelAsmCmp& cmp, int level) {
  BomMdl row;
  row.level = level;
  row.quantity = 1;
  row.mdl = cmp.mdl;
  row.cmps.push_back(cmp);
  return row;
}

}  // namespace

std::wstring LiteralBom::UpperName(ProMdl mdl) const {
  std::wstring name = model_.GetMdlName(mdl);
  for (wchar_t& c : name) c = static_cast<wchar_t>(std::towupper(c));
  return name;
}

bool LiteralBom::SameModel(ProMdl a, ProMdl b) const {
  int typeA = 0, typeB = 0;
  model_.GetMdlType(a, typeA);
  model_.GetMdlType(b, typeB);
  return typeA == typeB && UpperName(a) == UpperName(b);
}

ProMdl LiteralBom::ModelAt(ProAsmcomppath path) const {
  ProMdl mdl = nullptr;
  if (ProAsmcomppathMdlGet(&path, &mdl) != PRO_TK_NO_ERROR) return nullptr;
  return mdl;
}

BomMdl LiteralBom::TopRow(ProMdl top, int level) const {
  TkModelAsmCmp cmp{};
  cmp.mdl = top;
  ProMdlToModelitem(top, &cmp.feature);
  cmp.path.owner = static_cast<ProSolid>(top);
  for (int& id : cmp.path.comp_id_table) id = -1;
  cmp.path.table_num = 0;
  return NewRow(cmp, level);
}

void LiteralBom::Filter(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  for (size_t i = rows.size(); i-- > 0;) {
    if (bom_.IsRowFilteredOut(filter, rows[i].cmps[0]) == 1) rows.erase(rows.begin() + i);
  }
}

int LiteralBom::Collect(const std::wstring& function, const BomCollectFilter& filter,
                        std::vector<BomMdl>& rows, bool firstLevel) const {
  rows.clear();
  ProMdl top = nullptr;
  if (int status = bom_.GetBomRootMdl(function, top)) return status;
  rows.push_back(TopRow(top, -1));
  std::vector<TkModelAsmCmp> cmps;
  model_.GetAllComponent2(top, cmps);
  int running = 1;
  for (const TkModelAsmCmp& cmp : cmps) {
    int counted = 0;
    bom_.IsCmpCounted(cmp, counted);
    if (cmp.path.table_num > 25 || !counted) continue;
    if (firstLevel && (cmp.path.table_num != 1 || !cmp.mdl)) continue;
    auto hit = std::find_if(rows.begin(), rows.end(),
                            [&](const BomMdl& row) { return SameModel(row.mdl, cmp.mdl); });
    if (hit != rows.end()) {
      ++hit->quantity;
      hit->cmps.push_back(cmp);
      continue;
    }
    rows.push_back(NewRow(cmp, -1));
    if (firstLevel) rows.back().BomCmpIds[0] = running++;
  }
  Filter(filter, rows);
  return 0;
}

int LiteralBom::GetFirstLevelBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  return Collect(L"GetFirstLevelBomMdls", filter, rows, true);
}

int LiteralBom::GetBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  return Collect(L"GetBomMdls", filter, rows, false);
}

int LiteralBom::GetAllLeveBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows,
                                  int sameAsmCmps) const {
  rows.clear();
  ProMdl top = nullptr;
  if (int status = bom_.GetBomRootMdl(L"GetAllLeveBomMdls", top)) return status;
  rows.push_back(TopRow(top, 0));
  std::vector<TkModelAsmCmp> cmps;
  model_.GetAllComponent2(top, cmps);
  for (const TkModelAsmCmp& r : cmps) {
    int counted = 0;
    bom_.IsCmpCounted(r, counted);
    if (r.path.table_num > 25 || !counted) continue;
    ProAsmcomppath p = Shortened(r.path);
    auto target = std::find_if(rows.begin(), rows.end(), [&](const BomMdl& row) {
      if (!SameModel(row.mdl, r.mdl)) return false;
      ProAsmcomppath q = Shortened(row.cmps[0].path);
      if (!sameAsmCmps) return UpperName(ModelAt(p)) == UpperName(ModelAt(q)) && p.table_num == q.table_num;
      int same = 0;
      model_.IsSameCmpPath(p, q, same);
      return same == 1;
    });

    int a = 0;
    for (int k = r.path.table_num - 1; k >= 0; --k) {
      ProAsmcomppath ancestorPath = r.path;
      ancestorPath.table_num = k;
      std::wstring ancestorName = UpperName(ModelAt(ancestorPath));
      for (const BomMdl& row : rows) {
        if (row.cmps[0].path.table_num == k && UpperName(ModelAt(row.cmps[0].path)) == ancestorName) {
          a = row.quantity;
          break;
        }
      }
      if (a > 1) break;
    }
    if (sameAsmCmps && a >= 2) continue;

    if (target != rows.end()) {
      ++target->quantity;
      target->cmps.push_back(r);
      continue;
    }
    BomMdl row = NewRow(r, r.path.table_num);
    bom_.NewBomCmpIds(row, rows, row.BomCmpIds);
    rows.push_back(row);
  }
  Filter(filter, rows);
  return 0;
}

void LiteralBom::SortByParam(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                             std::vector<BomMdl>& sorted, bool ascending) const {
  sorted.clear();
  for (const BomMdl& row : rows) {
    std::wstring value = param_.GetMdlParamValue(row.mdl, sortParam, 2);
    auto at = sorted.begin();
    for (; at != sorted.end(); ++at) {
      int c = bom_.CompareParamText(value, param_.GetMdlParamValue(at->mdl, sortParam, 2));
      if (ascending ? c <= 0 : c >= 0) break;
    }
    sorted.insert(at, row);
  }
}

int LiteralBom::SortLevelBomMdls(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                                 std::vector<BomMdl>& sorted) const {
  sorted.clear();
  std::vector<BomMdl> w;
  BomMdl kept;  // without a model when no top row is left: renumbering drops it
  for (int level = 0; level <= 24; ++level) {
    std::vector<BomMdl> parts, others;
    for (const BomMdl& row : rows) {
      if (row.level != level) continue;
      int type = 0;
      model_.GetMdlType(row.mdl, type);
      (type == 2 ? parts : others).push_back(row);
    }
    if (parts.empty() && others.empty()) continue;
    std::vector<BomMdl> sortedParts, sortedOthers;
    SortByParam(parts, sortParam, sortedParts, level <= 1);
    SortByParam(others, sortParam, sortedOthers, level <= 1);
    if (level == 0) {
      if (sortedOthers.size() != 1) return PRO_TK_E_NOT_FOUND;
      kept = sortedOthers[0];
    } else if (level == 1) {
      w.insert(w.begin(), sortedOthers.begin(), sortedOthers.end());
      w.insert(w.begin(), sortedParts.begin(), sortedParts.end());
    } else {
      sortedOthers.insert(sortedOthers.end(), sortedParts.begin(), sortedParts.end());
      for (const BomMdl& row : sortedOthers) {
        for (size_t x = 0; x < w.size(); ++x) {
          if (w[x].level != row.level - 1) continue;
          bool equal = true;
          for (int t = 0; t < w[x].level; ++t) equal = equal && w[x].BomCmpIds[t] == row.BomCmpIds[t];
          if (!equal) continue;
          w.insert(w.begin() + x + 1, row);
          break;
        }
      }
    }
  }
  w.insert(w.begin(), kept);
  for (const BomMdl& row : w) {
    BomMdl copy = row;
    if (bom_.RenumberBomCmpIds(copy, sorted, copy.BomCmpIds) == 0) sorted.push_back(copy);
  }
  return 0;
}
