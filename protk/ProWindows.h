// Graphics windows.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

extern ProError ProObjectwindowMdlnameCreate(ProMdlName object_name, ProType object_type, int* p_window_id);
extern ProError ProWindowActivate(int window);
extern ProError ProWindowCurrentGet(int* p_window_id);
extern ProError ProWindowRefresh(int window_id);
extern ProError ProWindowRepaint(int window_id);
extern ProError ProWindowClear(int window_id);

PRO_END_C_DECLS
