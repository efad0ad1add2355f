// The summary list: one row per distinct model at any depth.
#include <unordered_map>

#include "CollectionIndex.h"

int TkBOM::GetBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  const std::wstring function = L"GetBomMdls";
  ProMdl top = nullptr;
  std::vector<TkModelAsmCmp> cmps;
  if (int status = StartCollection(function, -1, rows, top, cmps)) return status;

  CollectionIndex index(*this);
  std::unordered_map<int, size_t> rowOfModel{{index.Model(top).key, 0}};
  for (const TkModelAsmCmp& cmp : cmps) {
    if (cmp.path.table_num > PRO_MAX_ASSEM_LEVEL || !index.Counts(cmp)) continue;
    auto [found, isNew] = rowOfModel.try_emplace(index.Model(cmp.mdl).key, rows.size());
    if (!isNew) {
      AddOccurrence(rows[found->second], cmp);
      continue;
    }
    rows.push_back(NewRow(cmp, -1));
  }
  RemoveFilteredRows(filter, rows);
  return 0;
}
