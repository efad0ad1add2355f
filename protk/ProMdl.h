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
extern ProError ProMdlToModelitem(ProMdl mdl, ProModelitem* p_model_item);
// BAD_CONTEXT for a model without a subtype; the subtype is then NONE.
extern ProError ProMdlSubtypeGet(ProMdl model, ProMdlsubtype* subtype);

// Files and session standing.
typedef struct pro_mdl_data {
  wchar_t name[80];
  wchar_t type[10];
  wchar_t path[PRO_PATH_SIZE];
  wchar_t device[20];
  wchar_t host[80];
  int version;
  int subclass;
} ProMdldata;

// Writes the next version of the model's file beside the one it came from.
extern ProError ProMdlSave(ProMdl handle);
extern ProError ProMdlDataGet(ProMdl handle, ProMdldata* p_data);
// Writes the model into `backup_dir` under its own name.
extern ProError ProMdlnameBackup(ProMdl handle, ProPath backup_dir);
// Renames in session; the files follow at the next save.
extern ProError ProMdlnameRename(ProMdl handle, ProMdlName new_name);
extern ProError ProMdlCommonnameSet(ProMdl model, wchar_t* common_name);
// Whether the model changed since it was loaded or last saved.
extern ProError ProMdlModificationVerify(ProMdl handle, ProBoolean* p_modified);
// A model already in session by name and type.
extern ProError ProMdlInit(ProName name, ProMdlType type, ProMdl* p_mdl_handle);
// Takes effect once control returns to the host.
extern ProError ProMdlErase(ProMdl handle);
// The host allocates the array; free it with ProArrayFree. E_NOT_FOUND when
// the session has no model of the type.
extern ProError ProSessionMdlList(ProMdlType model_type, ProMdl** p_model_array, int* p_count);

PRO_END_C_DECLS
