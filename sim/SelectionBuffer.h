// The host's selection buffer as tests see it: what the plug-in highlighted,
// in the order added.
#pragma once

#include "ProObjects.h"

#include <vector>

namespace sim {

struct Selected {
  bool hasPath = false;
  ProAsmcomppath path{};  // the context of the item
  bool hasItem = false;
  ProModelitem item{};
};

std::vector<Selected> SelectionBuffer();

}  // namespace sim
