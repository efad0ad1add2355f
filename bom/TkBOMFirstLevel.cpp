// The single-level list: the direct components of the top model.
#include <unordered_map>

#include "CollectionIndex.h"
#include "DebugOutput.h"

int TkBOM::GetFirstLevelBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const {
  const std::wstring function = L"GetFirstLevelBomMdls";
  platform::OutputDebugString(L"@_GetFirstLevelBomMdls_1");
  ProMdl top = nullptr;
  std::vector<TkModelAsmCmp> cmps;
  if (int status = StartCollection(function, -1, rows, top, cmps)) return status;

  CollectionIndex index(*this);
  std::unordered_map<int, size_t> rowOfModel{{index.Model(top).key, 0}};
  int runningNumber = 1;
  for (size_t i = 0; i < cmps.size(); ++i) {
    const TkModelAsmCmp& cmp = cmps[i];
    if (cmp.path.table_num != 1 || !cmp.mdl || !index.Counts(cmp)) continue;
    log_.LogStatus(Tag(function, L"The " + std::to_wstring(i) + L" Cmp"), 0);
    const CollectionIndex::ModelInfo& info = index.Model(cmp.mdl);
    log_.LogStatus(Tag(function, L"GetMdlNameAndType"), info.typeStatus);

    auto [found, isNew] = rowOfModel.try_emplace(info.key, rows.size());
    if (!isNew) {
      AddOccurrence(rows[found->second], cmp);
      continue;
    }
    rows.push_back(NewRow(cmp, -1));
    rows.back().BomCmpIds[0] = runningNumber++;
  }
  RemoveFilteredRows(filter, rows);
  return 0;
}
