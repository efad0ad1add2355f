// Drawing operations of the model access layer. No state.
#pragma once

#include <vector>

#include "ProObjects.h"

class CTkDrwTable {
 public:
  // Appends the models the drawing shows, in the drawing's order; the
  // status of the failing host call, else 0.
  int GetDrawingSolids(ProMdl drawing, std::vector<ProMdl>& solids) const;
};
