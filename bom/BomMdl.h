// One row of a bill of materials.
#pragma once

#include <array>
#include <vector>

#include "ProObjects.h"
#include "TkModel.h"

struct BomMdl {
  ProMdl mdl = nullptr;
  int quantity = 0;  // occurrences held in `cmps`, at least 1 in a collection's result
  // Depth in the tree: 0 for the top model and the occurrences' depth in
  // the multi-level list; -1 in the single-level and summary lists.
  int level = -1;
  // Multi-level: the outline number, element t the ordinal among its
  // siblings of the ancestor at depth t+1 (the row's own at level-1), -1
  // behind. Single level: element 0 is the running number of creation.
  std::array<int, PRO_MAX_ASSEM_LEVEL> BomCmpIds = MinusOnes();
  std::vector<TkModelAsmCmp> cmps;  // the occurrences counted, in walk order

  static constexpr std::array<int, PRO_MAX_ASSEM_LEVEL> MinusOnes() {
    std::array<int, PRO_MAX_ASSEM_LEVEL> ids{};
    ids.fill(-1);
    return ids;
  }
};
