// The multi-level list. For every occurrence the list's rules search the
// rows for a merge target, for its ancestors' rows and for its parent and
// siblings; each search is an index here, keyed by exactly what the search
// compares, and kept as rows are made and grow.
#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>

#include "CollectionIndex.h"
#include "PathKey.h"

namespace {

struct TargetHash {
  size_t operator()(const std::pair<int, PathKey>& target) const {
    return PathKeyHash()(target.second) * 31 + static_cast<size_t>(target.first);
  }
};

class MultiLevelIndex {
 public:
  MultiLevelIndex(const std::vector<TkModelAsmCmp>& cmps, ProMdl top) : cmps_(cmps), top_(top) {}

  // Every occurrence of the walk, counted or not, so that ancestors are found.
  void Place(size_t position) {
    const ProAsmcomppath& path = cmps_[position].path;
    positionOfPath_.emplace(KeyOfPath(path, path.table_num), position);
  }

  // The model at the path: the top for an empty one, null where the walk has
  // no occurrence.
  ProMdl ModelAt(const PathKey& path) const {
    if (path.depth == 0) return top_;
    auto found = positionOfPath_.find(path);
    return found == positionOfPath_.end() ? nullptr : cmps_[found->second].mdl;
  }

  std::unordered_map<PathKey, size_t, PathKeyHash> rowOfOccurrence;
  // By parent path: one above the highest ordinal of a row holding a child of it.
  std::unordered_map<PathKey, int, PathKeyHash> nextOrdinal;
  // Merge targets: by model key, parent's name and depth; or by model key
  // and parent path.
  std::map<std::tuple<int, int, int>, size_t> targetUnderName;
  std::unordered_map<std::pair<int, PathKey>, size_t, TargetHash> targetUnderPath;
  // The first row of a depth and model name.
  std::map<std::pair<int, int>, size_t> firstOfLevelAndName;

 private:
  const std::vector<TkModelAsmCmp>& cmps_;
  ProMdl top_;
  std::unordered_map<PathKey, size_t, PathKeyHash> positionOfPath_;
};

}  // namespace

int TkBOM::GetAllLeveBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows,
                             int sameAsmCmps) const {
  const std::wstring function = L"GetAllLeveBomMdls";
  ProMdl top = nullptr;
  std::vector<TkModelAsmCmp> cmps;
  if (int status = StartCollection(function, 0, rows, top, cmps)) return status;
  log_.LogStatus(Tag(function, L"CmpNum: " + std::to_wstring(cmps.size())), 0);

  CollectionIndex models(*this);
  MultiLevelIndex index(cmps, top);
  index.rowOfOccurrence.emplace(KeyOfPath(rows[0].cmps[0].path, 0), 0);
  index.firstOfLevelAndName.emplace(std::pair{0, models.Model(top).nameKey}, 0);

  for (size_t position = 0; position < cmps.size(); ++position) {
    index.Place(position);
    const TkModelAsmCmp& cmp = cmps[position];
    const int depth = cmp.path.table_num;
    if (depth > PRO_MAX_ASSEM_LEVEL || !models.Counts(cmp)) continue;
    const PathKey own = KeyOfPath(cmp.path, depth);
    const PathKey parent = KeyOfPath(cmp.path, depth - 1);
    const int key = models.Model(cmp.mdl).key;
    const int parentName = models.Model(index.ModelAt(parent)).nameKey;

    if (sameAsmCmps) {
      // A sub-assembly that occurs more than once shows its contents once:
      // an occurrence goes when the nearest ancestor row found has more.
      int ancestorQuantity = 0;
      for (int k = depth - 1; k >= 0 && ancestorQuantity <= 1; --k) {
        int name = models.Model(index.ModelAt(KeyOfPath(cmp.path, k))).nameKey;
        auto ancestor = index.firstOfLevelAndName.find({k, name});
        if (ancestor != index.firstOfLevelAndName.end()) ancestorQuantity = rows[ancestor->second].quantity;
      }
      if (ancestorQuantity >= 2) continue;
    }

    size_t target = rows.size();
    if (sameAsmCmps) {
      auto found = index.targetUnderPath.find({key, parent});
      if (found != index.targetUnderPath.end()) target = found->second;
    } else {
      auto found = index.targetUnderName.find({key, parentName, depth});
      if (found != index.targetUnderName.end()) target = found->second;
    }

    if (target == rows.size()) {
      BomMdl row = NewRow(cmp, depth);
      auto parentRow = index.rowOfOccurrence.find(parent);
      if (parentRow != index.rowOfOccurrence.end()) {
        const BomMdl& above = rows[parentRow->second];
        std::copy_n(above.BomCmpIds.begin(), std::max(above.level, 0), row.BomCmpIds.begin());
      }
      auto next = index.nextOrdinal.find(parent);
      row.BomCmpIds[depth - 1] = next == index.nextOrdinal.end() ? 1 : std::max(next->second, 1);
      index.targetUnderName.emplace(std::tuple{key, parentName, depth}, target);
      index.targetUnderPath.emplace(std::pair{key, parent}, target);
      index.firstOfLevelAndName.emplace(std::pair{depth, models.Model(cmp.mdl).nameKey}, target);
      rows.push_back(std::move(row));
    } else {
      AddOccurrence(rows[target], cmp);
    }
    const BomMdl& holder = rows[target];
    index.rowOfOccurrence.emplace(own, target);
    int& next = index.nextOrdinal[parent];
    next = std::max(next, holder.BomCmpIds[holder.level - 1] + 1);
  }
  RemoveFilteredRows(filter, rows);
  return 0;
}
