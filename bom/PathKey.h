// A component path as a hash key: two keys are equal exactly when
// IsSameCmpPath calls the paths the same.
#pragma once

#include <array>
#include <cstddef>

#include "ProObjects.h"

struct PathKey {
  ProSolid owner = nullptr;
  int depth = 0;                               // the path's table_num
  std::array<int, PRO_MAX_ASSEM_LEVEL> ids{};  // those behind `depth` are 0

  bool operator==(const PathKey&) const = default;
};

// The path cut to `depth` ids; below 0 a key that no occurrence has.
PathKey KeyOfPath(const ProAsmcomppath& path, int depth);

struct PathKeyHash {
  size_t operator()(const PathKey& key) const;
};
