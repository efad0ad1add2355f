// The host's classic menu bar as a tree of MenuItem.
#pragma once

#include "Inspection.h"
#include "ProToolkit.h"

#include <string_view>
#include <vector>

namespace sim {

// The menus the host starts with.
std::vector<MenuItem> HostMenuBar();

// A menu (not a button) of that name anywhere in the bar; null if none.
MenuItem* FindMenu(std::vector<MenuItem>& bar, std::string_view name);

struct Placement {
  ProError status = PRO_TK_NO_ERROR;
  size_t index = 0;  // where the item goes among its siblings
};

// An item goes directly after or before its neighbour; without one (null or
// empty) at the end (after) or the front (before). PRO_TK_E_FOUND when an
// item of that name is there already, PRO_TK_GENERAL_ERROR for a neighbour
// that is not among the siblings.
Placement PlaceMenuItem(const std::vector<MenuItem>& siblings, std::string_view name, const char* neighbour,
                        bool addAfter);

}  // namespace sim
