#include "CommandsJob.h"

#include <string>

#include "CodePage.h"
#include "HostControl.h"
#include "Inspection.h"

namespace {

void PrintItem(std::ostream& out, const sim::MenuItem& item, int depth) {
  std::string indent(2 * depth, ' ');
  std::string label = platform::ToNarrow(item.label);
  if (item.kind == sim::MenuItem::Kind::Button) {
    out << indent << "button " << item.name << "\t" << label << "\t-> " << item.command << "\n";
    return;
  }
  out << indent << "menu " << item.name << (label.empty() ? "" : "\t" + label) << "\n";
  for (const auto& child : item.children) PrintItem(out, child, depth + 1);
}

}  // namespace

void PrintCommands(std::ostream& out) {
  // The host's own menus are empty here; only what holds something is shown.
  for (const auto& menu : sim::MenuBar()) {
    if (!menu.children.empty()) PrintItem(out, menu, 0);
  }
  for (const auto& command : sim::Commands()) {
    auto state = sim::Access(command.name);
    out << command.name << "\t" << (state == ACCESS_AVAILABLE ? "available" : "unavailable") << "\n";
  }
}
