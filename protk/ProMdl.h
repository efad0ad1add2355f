// Models: identity, loading, display.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

extern ProError ProMdlCurrentGet(ProMdl* p_handle);
extern ProError ProMdlTypeGet(ProMdl model, ProMdlType* p_type);
extern ProError ProMdlMdlnameGet(ProMdl handle, ProMdlName name);
extern ProError ProMdlNameGet(ProMdl handle, ProName name);
extern ProError ProMdlCommonnameGet(ProMdl model, wchar_t** common_name, ProBoolean* is_modifiable);
extern ProError ProMdlOriginGet(ProMdl handle, ProPath origin);
extern ProError ProMdlFiletypeLoad(ProPath full_path, ProMdlfileType type, ProBoolean ask_user_about_reps,
                                   ProMdl* p_handle);
extern ProError ProMdlDisplay(ProMdl model);

PRO_END_C_DECLS
