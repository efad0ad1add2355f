// Outline numbers of single multi-level rows, found by searching the rows.
#include <algorithm>

#include "TkBOM.h"

namespace {

ProAsmcomppath ParentPath(const ProAsmcomppath& path) {
  ProAsmcomppath parent = path;
  --parent.table_num;
  return parent;
}

// Whether one of the row's occurrences is at `path` or, with `childOf`,
// directly below it.
bool Holds(const CTkModel& model, const BomMdl& row, const ProAsmcomppath& path, bool childOf) {
  return std::any_of(row.cmps.begin(), row.cmps.end(), [&](const TkModelAsmCmp& cmp) {
    int same = 0;
    model.IsSameCmpPath(path, childOf ? ParentPath(cmp.path) : cmp.path, same);
    return same == 1;
  });
}

// The parent's elements of the outline number: those of the first row
// holding the parent occurrence, up to its level.
void CopyParentIds(const CTkModel& model, const ProAsmcomppath& parentPath, const std::vector<BomMdl>& rows,
                   BomCmpIdTable& ids) {
  auto parent = std::find_if(rows.begin(), rows.end(),
                             [&](const BomMdl& row) { return Holds(model, row, parentPath, false); });
  if (parent != rows.end())
    std::copy_n(parent->BomCmpIds.begin(), std::clamp(parent->level, 0, PRO_MAX_ASSEM_LEVEL), ids.begin());
}

}  // namespace

int TkBOM::NewBomCmpIds(const BomMdl& row, const std::vector<BomMdl>& rows, BomCmpIdTable& ids) const {
  ids.fill(-1);
  if (row.cmps.empty()) return PRO_TK_BAD_INPUTS;
  const ProAsmcomppath parentPath = ParentPath(row.cmps[0].path);
  CopyParentIds(model_, parentPath, rows, ids);
  if (row.level < 1) return 0;
  int ordinal = 1;
  for (const BomMdl& sibling : rows) {
    if (sibling.level == row.level && Holds(model_, sibling, parentPath, true))
      ordinal = std::max(ordinal, sibling.BomCmpIds[row.level - 1] + 1);
  }
  ids[row.level - 1] = ordinal;
  return 0;
}

int TkBOM::RenumberBomCmpIds(const BomMdl& row, const std::vector<BomMdl>& sorted, BomCmpIdTable& ids) const {
  if (!row.mdl || row.cmps.empty()) return PRO_TK_BAD_INPUTS;
  const ProAsmcomppath parentPath = ParentPath(row.cmps[0].path);
  CopyParentIds(model_, parentPath, sorted, ids);
  int ordinal = 1;
  for (const BomMdl& sibling : sorted) {
    if (sibling.level == row.level && Holds(model_, sibling, parentPath, true)) ++ordinal;
  }
  if (row.level == 0) ids[0] = 0;
  if (row.level >= 1) ids[row.level - 1] = ordinal;
  return 0;
}
