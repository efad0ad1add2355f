#include "LiteralBom.h"

#include <cwctype>

#include "ProAsmcomp.h"
#include "ProMdl.h"

namespace {

ProAsmcomppath Shortened(ProAsmcomppath path) {
  --path.table_num;
  if (path.table_num >= 0) path.comp_id_table[path.table_num] = -1;
  return path;
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
  BomMdl row;
  row.mdl = top;
  row.quantity = 1;
  row.level = level;
  TkModelAsmCmp cmp{};
  cmp.mdl = top;
  ProMdlToModelitem(top, &cmp.feature);
  cmp.path.owner = static_cast<ProSolid>(top);
  for (int& id : cmp.path.comp_id_table) id = -1;
  cmp.path.table_num = 0;
  row.cmps.push_back(cmp);
  return row;
}

void LiteralBom::Filter(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  for (size_t i = rows.size(); i-- > 0;) {
    if (bom_.IsRowFilteredOut(filter, rows[i].cmps[0]) == 1) rows.erase(rows.begin() + i);
  }
}

int LiteralBom::GetFirstLevelBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  rows.clear();
  ProMdl top = nullptr;
  if (int status = bom_.GetBomRootMdl(L"GetFirstLevelBomMdls", top)) return status;
  rows.push_back(TopRow(top, -1));
  std::vector<TkModelAsmCmp> cmps;
  model_.GetAllComponent2(top, cmps);
  int running = 1;
  for (const TkModelAsmCmp& cmp : cmps) {
    if (cmp.path.table_num > 25) continue;
    int counted = 0;
    bom_.IsCmpCounted(cmp, counted);
    if (!counted || cmp.path.table_num != 1 || !cmp.mdl) continue;
    BomMdl* hit = nullptr;
    for (BomMdl& row : rows) {
      if (SameModel(row.mdl, cmp.mdl)) {
        hit = &row;
        break;
      }
    }
    if (hit) {
      ++hit->quantity;
      hit->cmps.push_back(cmp);
      continue;
    }
    BomMdl row;
    row.level = -1;
    row.quantity = 1;
    row.mdl = cmp.mdl;
    row.cmps.push_back(cmp);
    row.BomCmpIds[0] = running++;
    rows.push_back(row);
  }
  Filter(filter, rows);
  return 0;
}

int LiteralBom::GetBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  rows.clear();
  ProMdl top = nullptr;
  if (int status = bom_.GetBomRootMdl(L"GetBomMdls", top)) return status;
  rows.push_back(TopRow(top, -1));
  std::vector<TkModelAsmCmp> cmps;
  model_.GetAllComponent2(top, cmps);
  for (const TkModelAsmCmp& cmp : cmps) {
    int counted = 0;
    bom_.IsCmpCounted(cmp, counted);
    if (cmp.path.table_num > 25 || !counted) continue;
    BomMdl* hit = nullptr;
    for (BomMdl& row : rows) {
      if (SameModel(row.mdl, cmp.mdl)) {
        hit = &row;
        break;
      }
    }
    if (hit) {
      ++hit->quantity;
      hit->cmps.push_back(cmp);
      continue;
    }
    BomMdl row;
    row.level = -1;
    row.quantity = 1;
    row.mdl = cmp.mdl;
    row.cmps.push_back(cmp);
    rows.push_back(row);
  }
  Filter(filter, rows);
  return 0;
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

    BomMdl* target = nullptr;
    for (BomMdl& row : rows) {
      if (!SameModel(row.mdl, r.mdl)) continue;
      ProAsmcomppath q = Shortened(row.cmps[0].path);
      bool isTarget = false;
      if (sameAsmCmps) {
        int same = 0;
        model_.IsSameCmpPath(p, q, same);
        isTarget = same == 1;
      } else {
        isTarget = UpperName(ModelAt(p)) == UpperName(ModelAt(q)) && p.table_num == q.table_num;
      }
      if (isTarget) {
        target = &row;
        break;
      }
    }

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

    if (target) {
      ++target->quantity;
      target->cmps.push_back(r);
      continue;
    }
    BomMdl row;
    row.level = r.path.table_num;
    row.quantity = 1;
    row.mdl = r.mdl;
    row.cmps.push_back(r);
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
  BomMdl kept;
  bool haveKept = false;
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
      haveKept = true;
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
  BomMdl first;
  if (haveKept) first = kept;
  w.insert(w.begin(), first);
  for (const BomMdl& row : w) {
    BomMdl copy = row;
    if (bom_.RenumberBomCmpIds(copy, sorted, copy.BomCmpIds) == 0) sorted.push_back(copy);
  }
  return 0;
}
