// The classic menu bar: menus, submenus and push buttons.
#pragma once

#include "ProUICmd.h"

PRO_BEGIN_C_DECLS

typedef char ProMenuItemName[PRO_NAME_SIZE];
typedef char ProMenuItemLabel[PRO_LINE_SIZE];
typedef char ProMenuLineHelp[PRO_LINE_SIZE];

extern ProError ProMenubarMenuAdd(ProMenuItemName menu_name, ProMenuItemLabel untranslated_menu_label,
                                  ProMenuItemName neighbor, ProBoolean add_after_neighbor,
                                  ProFileName filename);
extern ProError ProMenubarmenuMenuAdd(ProMenuItemName parent_menu, ProMenuItemName menu_name,
                                      ProMenuItemLabel menu_label, ProMenuItemName neighbor,
                                      ProBoolean add_after_neighbor, ProFileName filename);
extern ProError ProMenubarmenuPushbuttonAdd(ProMenuItemName parent_menu, ProMenuItemName push_button_name,
                                            ProMenuItemLabel push_button_label, ProMenuLineHelp one_line_help,
                                            ProMenuItemName neighbor, ProBoolean add_after_neighbor,
                                            uiCmdCmdId action_id, ProFileName filename);

PRO_END_C_DECLS
