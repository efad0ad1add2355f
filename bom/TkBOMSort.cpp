// Sorting of the multi-level list. The list's sort is an insertion sort that
// puts a row before the first one of equal key, and rebuilds the tree by
// inserting each row directly behind its parent; here the same order comes
// from a stable sort and an index of the parents by outline number.
#include <algorithm>
#include <list>
#include <map>
#include <numeric>
#include <unordered_map>

#include "TkText.h"
#include "DebugOutput.h"
#include "PathKey.h"
#include "TkBOM.h"

namespace {

int CompareTexts(const std::wstring& a, const std::wstring& b) {
  std::wstring upperA = tktext::Upper(a), upperB = tktext::Upper(b);
  size_t common = std::min(upperA.size(), upperB.size());
  for (size_t i = 0; i < common; ++i) {
    if (upperA[i] != upperB[i]) return upperA[i] > upperB[i] ? 1 : -1;
  }
  if (upperA.size() == upperB.size()) return 0;
  return upperA.size() > upperB.size() ? 1 : -1;
}

// The positions in the order the insertion sort gives: by key, rows of equal
// key in reverse input order.
std::vector<size_t> InsertionOrder(const std::vector<std::wstring>& keys, bool ascending) {
  std::vector<size_t> order(keys.size());
  std::iota(order.rbegin(), order.rend(), 0);
  std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
    int c = CompareTexts(keys[a], keys[b]);
    return ascending ? c < 0 : c > 0;
  });
  return order;
}

// The parent of a row is the first row of W one level up whose outline
// number agrees up to that level.
std::vector<int> ParentKey(const BomMdl& row, int level) {
  std::vector<int> key{level};
  key.insert(key.end(), row.BomCmpIds.begin(),
             row.BomCmpIds.begin() + std::clamp(level, 0, PRO_MAX_ASSEM_LEVEL));
  return key;
}

using Work = std::list<const BomMdl*>;

class ParentIndex {
 public:
  explicit ParentIndex(Work& work) : work_(work) {}

  void Add(Work::iterator at) { candidates_[ParentKey(**at, (*at)->level)].push_back(at); }

  // W's end when the row has no parent in W.
  Work::iterator ParentOf(const BomMdl& row) const {
    auto found = candidates_.find(ParentKey(row, row.level - 1));
    if (found == candidates_.end()) return work_.end();
    const auto& rows = found->second;
    if (rows.size() == 1) return rows.front();
    // Rows of equal outline number: the first in W is the one.
    for (auto at = work_.begin(); at != work_.end(); ++at) {
      if (std::find(rows.begin(), rows.end(), at) != rows.end()) return at;
    }
    return work_.end();
  }

 private:
  Work& work_;
  std::map<std::vector<int>, std::vector<Work::iterator>> candidates_;
};

// Renumbering against the rows already sorted: the first sorted row holding
// an occurrence, and the count of sorted rows holding a child of a path.
class SortedIndex {
 public:
  void Renumber(BomMdl& row) const {
    const ProAsmcomppath& path = row.cmps[0].path;
    PathKey parent = KeyOfPath(path, path.table_num - 1);
    auto holder = firstHolder_.find(parent);
    if (holder != firstHolder_.end())
      std::copy_n(holder->second->BomCmpIds.begin(),
                  std::clamp(holder->second->level, 0, PRO_MAX_ASSEM_LEVEL), row.BomCmpIds.begin());
    auto siblings = children_.find({row.level, parent});
    int ordinal = 1 + (siblings == children_.end() ? 0 : siblings->second);
    if (row.level == 0) row.BomCmpIds[0] = 0;
    if (row.level >= 1) row.BomCmpIds[row.level - 1] = ordinal;
  }

  void Add(const BomMdl& row) {
    std::vector<PathKey> parents;
    for (const TkModelAsmCmp& cmp : row.cmps) {
      firstHolder_.try_emplace(KeyOfPath(cmp.path, cmp.path.table_num), &row);
      PathKey parent = KeyOfPath(cmp.path, cmp.path.table_num - 1);
      if (std::find(parents.begin(), parents.end(), parent) == parents.end()) parents.push_back(parent);
    }
    for (const PathKey& parent : parents) ++children_[{row.level, parent}];
  }

 private:
  struct ChildHash {
    size_t operator()(const std::pair<int, PathKey>& key) const {
      return PathKeyHash()(key.second) * 31 + static_cast<size_t>(key.first);
    }
  };
  std::unordered_map<PathKey, const BomMdl*, PathKeyHash> firstHolder_;
  std::unordered_map<std::pair<int, PathKey>, int, ChildHash> children_;
};

}  // namespace

int TkBOM::CompareParamText(const std::wstring& a, const std::wstring& b) const { return CompareTexts(a, b); }

int TkBOM::SortBomMdlsByParam(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                              std::vector<BomMdl>& sorted, int ascending) const {
  sorted.clear();
  std::vector<std::wstring> keys;
  for (const BomMdl& row : rows) keys.push_back(param_.GetMdlParamValue(row.mdl, sortParam, 2));
  for (size_t position : InsertionOrder(keys, ascending != 0)) sorted.push_back(rows[position]);
  return 0;
}

int TkBOM::SortLevelBomMdls(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                            std::vector<BomMdl>& sorted) const {
  sorted.clear();
  std::unordered_map<ProMdl, std::wstring> keyOf;
  std::unordered_map<ProMdl, bool> isPart;
  auto key = [&](ProMdl mdl) -> const std::wstring& {
    auto known = keyOf.find(mdl);
    if (known == keyOf.end()) known = keyOf.emplace(mdl, param_.GetMdlParamValue(mdl, sortParam, 2)).first;
    return known->second;
  };
  auto part = [&](ProMdl mdl) {
    auto known = isPart.find(mdl);
    if (known != isPart.end()) return known->second;
    int type = 0;
    model_.GetMdlType(mdl, type);
    return isPart[mdl] = type == CTkModel::kPart;
  };
  auto sortGroup = [&](const std::vector<const BomMdl*>& group, bool ascending) {
    std::vector<std::wstring> keys;
    for (const BomMdl* row : group) keys.push_back(key(row->mdl));
    std::vector<const BomMdl*> ordered;
    for (size_t position : InsertionOrder(keys, ascending)) ordered.push_back(group[position]);
    return ordered;
  };

  Work work;
  ParentIndex parents(work);
  const BomMdl* top = nullptr;
  for (int level = 0; level < PRO_MAX_ASSEM_LEVEL; ++level) {
    std::vector<const BomMdl*> parts, others;
    for (const BomMdl& row : rows) {
      if (row.level == level) (part(row.mdl) ? parts : others).push_back(&row);
    }
    if (parts.empty() && others.empty()) continue;
    // Insertion behind the parent reverses, so the deeper levels go in
    // descending order.
    parts = sortGroup(parts, level <= 1);
    others = sortGroup(others, level <= 1);
    if (level == 0) {
      if (others.size() != 1) return PRO_TK_E_NOT_FOUND;
      top = others.front();
      continue;
    }
    std::vector<Work::iterator> placed;
    if (level == 1) {
      work.insert(work.begin(), others.begin(), others.end());
      work.insert(work.begin(), parts.begin(), parts.end());
      for (auto at = work.begin(); at != work.end(); ++at) placed.push_back(at);
    } else {
      others.insert(others.end(), parts.begin(), parts.end());
      for (const BomMdl* row : others) {
        Work::iterator parent = parents.ParentOf(*row);
        if (parent == work.end()) {
          const auto& ids = row->BomCmpIds;
          platform::OutputDebugString(L"Asm " + std::to_wstring(ids[0]) + L"-" + std::to_wstring(ids[1]) +
                                      L"-" + std::to_wstring(ids[2]) + L"-" + std::to_wstring(ids[3]) + L"-" +
                                      std::to_wstring(ids[4]));
          continue;
        }
        placed.push_back(work.insert(std::next(parent), row));
      }
    }
    for (Work::iterator at : placed) parents.Add(at);
  }
  if (top) work.push_front(top);

  // The index points into `sorted`, which must not move while it fills.
  sorted.reserve(work.size());
  SortedIndex index;
  for (const BomMdl* row : work) {
    sorted.push_back(*row);
    index.Renumber(sorted.back());
    index.Add(sorted.back());
  }
  return 0;
}
