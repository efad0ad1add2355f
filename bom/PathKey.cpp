#include "PathKey.h"

#include <algorithm>
#include <functional>

PathKey KeyOfPath(const ProAsmcomppath& path, int depth) {
  PathKey key;
  key.owner = path.owner;
  key.depth = depth;
  std::copy_n(path.comp_id_table, std::clamp(depth, 0, PRO_MAX_ASSEM_LEVEL), key.ids.begin());
  return key;
}

size_t PathKeyHash::operator()(const PathKey& key) const {
  size_t hash =
      std::hash<const void*>()(key.owner) ^ (static_cast<size_t>(key.depth) * 0x9e3779b97f4a7c15ULL);
  for (int i = 0; i < std::clamp(key.depth, 0, PRO_MAX_ASSEM_LEVEL); ++i)
    hash = (hash ^ static_cast<size_t>(key.ids[i])) * 0x100000001b3ULL;
  return hash;
}
