#include "MenuBar.h"

#include "CodePage.h"

#include <algorithm>

namespace sim {

std::vector<MenuItem> HostMenuBar() {
  std::vector<MenuItem> bar;
  for (const char* name : {"File", "Edit", "View", "Insert", "Analysis", "Info", "Applications", "Tools",
                           "Utilities", "Window", "Help"}) {
    bar.push_back({MenuItem::Kind::Menu, name, name, platform::ToWide(name)});
  }
  return bar;
}

MenuItem* FindMenu(std::vector<MenuItem>& bar, std::string_view name) {
  for (MenuItem& item : bar) {
    if (item.kind != MenuItem::Kind::Menu) continue;
    if (item.name == name) return &item;
    if (MenuItem* found = FindMenu(item.children, name)) return found;
  }
  return nullptr;
}

Placement PlaceMenuItem(const std::vector<MenuItem>& siblings, std::string_view name, const char* neighbour,
                        bool addAfter) {
  auto present = [&](const MenuItem& s) { return s.name == name; };
  if (std::any_of(siblings.begin(), siblings.end(), present)) return {PRO_TK_E_FOUND};
  if (!neighbour || !*neighbour) return {PRO_TK_NO_ERROR, addAfter ? siblings.size() : 0};
  auto at =
      std::find_if(siblings.begin(), siblings.end(), [&](const MenuItem& s) { return s.name == neighbour; });
  if (at == siblings.end()) return {PRO_TK_GENERAL_ERROR};
  return {PRO_TK_NO_ERROR, static_cast<size_t>(at - siblings.begin()) + (addAfter ? 1 : 0)};
}

}  // namespace sim
