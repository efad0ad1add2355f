// Graphics windows. The base window (id 0) always exists; a window opened
// later gets the next id. An activation waits until control returns to the
// host.
#include "ProWindows.h"

#include "Session.h"
#include "ToolkitCall.h"

namespace {

// PRO_VALUE_UNUSED names the current window.
ProError RecordWindowCall(const char* name, int window_id) {
  sim::ToolkitCall call(name, {window_id});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  return state.FindWindow(window_id == PRO_VALUE_UNUSED ? state.currentWindow : window_id)
             ? PRO_TK_NO_ERROR
             : PRO_TK_BAD_INPUTS;
}

}  // namespace

extern "C" ProError ProObjectwindowMdlnameCreate(ProMdlName object_name, ProType object_type,
                                                 int* p_window_id) {
  sim::ToolkitCall call("ProObjectwindowMdlnameCreate", {object_name, object_type});
  if (call.Failed()) return call.Status();
  if (!object_name || !p_window_id) return PRO_TK_BAD_INPUTS;
  sim::HostState& state = call.state();
  sim::Model* model = sim::FindInSession(state, static_cast<ProMdlType>(object_type), object_name);
  if (!model) return PRO_TK_E_NOT_FOUND;
  sim::Window* window = state.WindowShowing(model);
  if (!window) window = state.WindowShowing(nullptr);
  if (!window) window = &state.windows.emplace_back(sim::Window{state.nextWindowId++});
  window->model = model;
  *p_window_id = window->id;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProWindowActivate(int window) {
  sim::ToolkitCall call("ProWindowActivate", {window});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  if (!state.FindWindow(window)) return PRO_TK_BAD_INPUTS;
  state.pendingActivation = window;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProWindowCurrentGet(int* p_window_id) {
  sim::ToolkitCall call("ProWindowCurrentGet");
  if (call.Failed()) return call.Status();
  if (!p_window_id) return PRO_TK_BAD_INPUTS;
  *p_window_id = call.state().currentWindow;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProWindowRefresh(int window_id) {
  return RecordWindowCall("ProWindowRefresh", window_id);
}

extern "C" ProError ProWindowRepaint(int window_id) {
  return RecordWindowCall("ProWindowRepaint", window_id);
}

extern "C" ProError ProWindowClear(int window_id) { return RecordWindowCall("ProWindowClear", window_id); }
