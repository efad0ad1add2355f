// Selections and the selection buffer. A selection is an object of the host
// that lives until it is freed; the buffer holds copies of what was added.
#include "ProAsmcomp.h"
#include "ProSelbuffer.h"
#include "ProSelection.h"
#include "SelectionBuffer.h"
#include "ToolkitCall.h"

#include <memory>
#include <map>

struct select3d {
  sim::Selected selected;
};

namespace {

// The host owns every selection it handed out; one never freed stays until
// the host ends, as in the host's own memory.
std::map<const select3d*, std::unique_ptr<select3d>>& LiveSelections() {
  static std::map<const select3d*, std::unique_ptr<select3d>> selections;
  return selections;
}

// The model a selection lives in: the top of its path, or the item's owner.
sim::Model* TopModel(const sim::HostState& state, const sim::Selected& selected) {
  return state.LiveModel(selected.hasPath ? static_cast<void*>(selected.path.owner) : selected.item.owner);
}

}  // namespace

// The item, when given with a path, must belong to the model at the path's
// end.
extern "C" ProError ProSelectionAlloc(ProAsmcomppath* p_cmp_path, ProModelitem* p_mdl_itm,
                                      ProSelection* p_selection) {
  sim::ToolkitCall call("ProSelectionAlloc", {sim::ModelRef{p_cmp_path ? p_cmp_path->owner : nullptr},
                                              p_mdl_itm ? p_mdl_itm->id : PRO_VALUE_UNUSED});
  if (call.Failed()) return call.Status();
  if (!p_selection || (!p_cmp_path && !p_mdl_itm)) return PRO_TK_BAD_INPUTS;
  const sim::HostState& state = call.state();
  sim::Selected selected;
  if (p_cmp_path) {
    const sim::Model* top = state.LiveSolid(p_cmp_path->owner);
    if (!top || p_cmp_path->table_num < 0 || p_cmp_path->table_num > PRO_MAX_ASSEM_LEVEL)
      return PRO_TK_BAD_INPUTS;
    const sim::Model* end = top;
    for (int i = 0; i < p_cmp_path->table_num && end; ++i)
      end = state.LiveModel(end->ComponentModel(p_cmp_path->comp_id_table[i]));
    if (!end || (p_mdl_itm && p_mdl_itm->owner != sim::Handle(const_cast<sim::Model*>(end))))
      return PRO_TK_BAD_INPUTS;
    selected.hasPath = true;
    selected.path = *p_cmp_path;
  }
  if (p_mdl_itm) {
    const sim::Model* owner = state.LiveModel(p_mdl_itm->owner);
    if (!owner || (!p_cmp_path && owner->def.type == PRO_MDL_ASSEMBLY)) return PRO_TK_BAD_INPUTS;
    selected.hasItem = true;
    selected.item = *p_mdl_itm;
  }
  auto selection = std::make_unique<select3d>(select3d{selected});
  *p_selection = selection.get();
  LiveSelections().emplace(selection.get(), std::move(selection));
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProSelectionFree(ProSelection* p_selection) {
  sim::ToolkitCall call("ProSelectionFree");
  if (call.Failed()) return call.Status();
  if (!p_selection || LiveSelections().erase(*p_selection) == 0) return PRO_TK_BAD_INPUTS;
  *p_selection = nullptr;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProSelbufferClear(void) {
  sim::ToolkitCall call("ProSelbufferClear");
  if (call.Failed()) return call.Status();
  call.state().selectionBuffer.clear();
  return PRO_TK_NO_ERROR;
}

// Only what a window shows can be highlighted.
extern "C" ProError ProSelbufferSelectionAdd(ProSelection object) {
  sim::ToolkitCall call("ProSelbufferSelectionAdd");
  if (call.Failed()) return call.Status();
  if (!LiveSelections().count(object)) return PRO_TK_BAD_INPUTS;
  sim::HostState& state = call.state();
  sim::Model* top = TopModel(state, object->selected);
  if (!top) return PRO_TK_INVALID_ITEM;
  const sim::Window* window = state.WindowShowing(top);
  if (!window || !window->displayed) return PRO_TK_NOT_DISPLAYED;
  state.selectionBuffer.push_back(object->selected);
  return PRO_TK_NO_ERROR;
}

namespace sim {

std::vector<Selected> SelectionBuffer() {
  std::lock_guard hold(TheHost().mutex);
  return TheHost().state.selectionBuffer;
}

}  // namespace sim
