// The classic menu bar: menus, submenus and push buttons. Labels and helps
// are keys of the named message file.
#include "ProMenuBar.h"

#include "MenuBar.h"
#include "MessageFile.h"
#include "ToolkitCall.h"

namespace {

// Resolves the item's keys and puts it in place; nothing changes on failure.
ProError AddItem(const sim::HostState& state, std::vector<sim::MenuItem>& siblings, sim::MenuItem item,
                 const char* neighbour, ProBoolean add_after, const wchar_t* filename) {
  sim::Placement placement = sim::PlaceMenuItem(siblings, item.name, neighbour, add_after == PRO_B_TRUE);
  if (placement.status != PRO_TK_NO_ERROR) return placement.status;
  sim::MessageLookup label = sim::LookupMenuText(state, filename, item.labelKey.c_str());
  if (label.status != PRO_TK_NO_ERROR) return PRO_TK_MSG_NOT_FOUND;
  item.label = label.text;
  if (item.kind == sim::MenuItem::Kind::Button) {
    sim::MessageLookup help = sim::LookupMenuText(state, filename, item.helpKey.c_str());
    if (help.status != PRO_TK_NO_ERROR) return PRO_TK_MSG_NOT_FOUND;
    item.help = help.text;
  }
  siblings.insert(siblings.begin() + placement.index, std::move(item));
  return PRO_TK_NO_ERROR;
}

sim::MenuItem Menu(const char* name, const char* label) { return {sim::MenuItem::Kind::Menu, name, label}; }

}  // namespace

extern "C" ProError ProMenubarMenuAdd(ProMenuItemName menu_name, ProMenuItemLabel untranslated_menu_label,
                                      ProMenuItemName neighbor, ProBoolean add_after_neighbor,
                                      ProFileName filename) {
  sim::ToolkitCall call("ProMenubarMenuAdd",
                        {menu_name, untranslated_menu_label, neighbor, add_after_neighbor, filename});
  if (call.Failed()) return call.Status();
  if (!menu_name || !untranslated_menu_label) return PRO_TK_GENERAL_ERROR;
  sim::HostState& state = call.state();
  if (sim::FindMenu(state.menuBar, menu_name)) return PRO_TK_NO_ERROR;  // a menu is added once a session
  return AddItem(state, state.menuBar, Menu(menu_name, untranslated_menu_label), neighbor, add_after_neighbor,
                 filename);
}

extern "C" ProError ProMenubarmenuMenuAdd(ProMenuItemName parent_menu, ProMenuItemName menu_name,
                                          ProMenuItemLabel menu_label, ProMenuItemName neighbor,
                                          ProBoolean add_after_neighbor, ProFileName filename) {
  sim::ToolkitCall call("ProMenubarmenuMenuAdd",
                        {parent_menu, menu_name, menu_label, neighbor, add_after_neighbor, filename});
  if (call.Failed()) return call.Status();
  if (!parent_menu || !menu_name || !menu_label) return PRO_TK_GENERAL_ERROR;
  sim::HostState& state = call.state();
  sim::MenuItem* parent = sim::FindMenu(state.menuBar, parent_menu);
  if (!parent) return PRO_TK_GENERAL_ERROR;
  if (sim::FindMenu(state.menuBar, menu_name)) return PRO_TK_NO_ERROR;  // a menu is added once a session
  return AddItem(state, parent->children, Menu(menu_name, menu_label), neighbor, add_after_neighbor,
                 filename);
}

extern "C" ProError ProMenubarmenuPushbuttonAdd(ProMenuItemName parent_menu, ProMenuItemName push_button_name,
                                                ProMenuItemLabel push_button_label,
                                                ProMenuLineHelp one_line_help, ProMenuItemName neighbor,
                                                ProBoolean add_after_neighbor, uiCmdCmdId action_id,
                                                ProFileName filename) {
  sim::ToolkitCall call("ProMenubarmenuPushbuttonAdd", {parent_menu, push_button_name, push_button_label,
                                                        one_line_help, neighbor, add_after_neighbor});
  if (call.Failed()) return call.Status();
  if (!parent_menu || !push_button_name || !push_button_label || !one_line_help) return PRO_TK_GENERAL_ERROR;
  sim::HostState& state = call.state();
  sim::MenuItem* parent = sim::FindMenu(state.menuBar, parent_menu);
  if (!parent) return PRO_TK_GENERAL_ERROR;
  const sim::Command* command = state.LiveCommand(action_id);
  if (!command) return PRO_TK_BAD_INPUTS;
  sim::MenuItem button{sim::MenuItem::Kind::Button, push_button_name, push_button_label};
  button.helpKey = one_line_help;
  button.command = command->info.name;
  return AddItem(state, parent->children, std::move(button), neighbor, add_after_neighbor, filename);
}
