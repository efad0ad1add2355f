// Models: identity, loading, display.
#include "ProMdl.h"

#include "HostMemory.h"
#include "Session.h"
#include "Text.h"
#include "ToolkitCall.h"

extern "C" ProError ProMdlCurrentGet(ProMdl* p_handle) {
  sim::ToolkitCall call("ProMdlCurrentGet");
  if (call.Failed()) return call.Status();
  if (!p_handle) return PRO_TK_BAD_INPUTS;
  sim::Model* current = call.state().CurrentModel();
  if (!current) return PRO_TK_BAD_CONTEXT;
  *p_handle = sim::Handle(current);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlTypeGet(ProMdl model, ProMdlType* p_type) {
  sim::ToolkitCall call("ProMdlTypeGet", {sim::ModelRef{model}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(model);
  if (!live || !p_type) return PRO_TK_BAD_INPUTS;
  *p_type = live->def.type;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlMdlnameGet(ProMdl handle, ProMdlName name) {
  sim::ToolkitCall call("ProMdlMdlnameGet", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(handle);
  if (!live || !name) return PRO_TK_BAD_INPUTS;
  sim::CopyText(name, PRO_MDLNAME_SIZE, live->def.name);
  return PRO_TK_NO_ERROR;
}

// The old call's buffer holds 31 characters; a longer name is cut.
extern "C" ProError ProMdlNameGet(ProMdl handle, ProName name) {
  sim::ToolkitCall call("ProMdlNameGet", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(handle);
  if (!live || !name) return PRO_TK_BAD_INPUTS;
  sim::CopyText(name, PRO_NAME_SIZE, live->def.name);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlCommonnameGet(ProMdl model, wchar_t** common_name, ProBoolean* is_modifiable) {
  sim::ToolkitCall call("ProMdlCommonnameGet", {sim::ModelRef{model}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(model);
  if (!live || !common_name) return PRO_TK_BAD_INPUTS;
  *common_name = sim::NewHostString(live->def.commonName);
  if (!*common_name) return PRO_TK_GENERAL_ERROR;
  if (is_modifiable) *is_modifiable = PRO_B_TRUE;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlOriginGet(ProMdl handle, ProPath origin) {
  sim::ToolkitCall call("ProMdlOriginGet", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(handle);
  if (!live || !origin) return PRO_TK_BAD_INPUTS;
  std::wstring path = live->origin.empty() ? std::wstring() : sim::WideText(live->origin);
  return sim::CopyText(origin, PRO_PATH_SIZE, path) ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}

extern "C" ProError ProMdlFiletypeLoad(ProPath full_path, ProMdlfileType type, ProBoolean, ProMdl* p_handle) {
  sim::ToolkitCall call("ProMdlFiletypeLoad", {full_path});
  if (call.Failed()) return call.Status();
  if (!full_path || !p_handle) return PRO_TK_BAD_INPUTS;
  sim::LoadResult loaded = sim::LoadModel(call.host(), full_path, type);
  if (loaded.status == PRO_TK_NO_ERROR) *p_handle = sim::Handle(loaded.model);
  return loaded.status;
}

// Shows the model in the window that holds it, else in the current window.
extern "C" ProError ProMdlDisplay(ProMdl model) {
  sim::ToolkitCall call("ProMdlDisplay", {sim::ModelRef{model}});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  sim::Model* shown = model ? state.LiveModel(model) : state.CurrentModel();
  if (model && !shown) return PRO_TK_INVALID_PTR;
  if (!shown) return PRO_TK_E_NOT_FOUND;
  sim::Window* window = state.WindowShowing(shown);
  if (!window) window = state.FindWindow(state.currentWindow);
  window->model = shown;
  window->displayed = true;
  return PRO_TK_NO_ERROR;
}
