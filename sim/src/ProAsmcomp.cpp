// Assembly components and component paths.
#include "ProAsmcomp.h"

#include "ToolkitCall.h"

namespace {

// The model at the end of the ids, each a component of the model before it;
// null where the chain breaks.
sim::Model* Walk(const sim::HostState& state, sim::Model* top, const int* ids, int count) {
  sim::Model* model = top;
  for (int i = 0; i < count && model; ++i) model = state.LiveModel(model->ComponentModel(ids[i]));
  return model;
}

bool IsPathLength(int count) { return count >= 0 && count <= PRO_MAX_ASSEM_LEVEL; }

}  // namespace

extern "C" ProError ProAsmcompMdlGet(ProAsmcomp* p_feat_handle, ProMdl* p_mdl_handle) {
  sim::ToolkitCall call("ProAsmcompMdlGet", {sim::ModelRef{p_feat_handle ? p_feat_handle->owner : nullptr},
                                             p_feat_handle ? p_feat_handle->id : PRO_VALUE_UNUSED});
  if (call.Failed()) return call.Status();
  if (!p_feat_handle || !p_mdl_handle) return PRO_TK_BAD_INPUTS;
  sim::Model* owner = call.state().LiveSolid(p_feat_handle->owner);
  if (!owner) return PRO_TK_BAD_INPUTS;
  sim::Model* model = Walk(call.state(), owner, &p_feat_handle->id, 1);
  if (!model) return PRO_TK_E_NOT_FOUND;
  *p_mdl_handle = sim::Handle(model);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProAsmcomppathInit(ProSolid p_solid_handle, ProIdTable memb_id_tab, int table_size,
                                       ProAsmcomppath* p_handle) {
  sim::ToolkitCall call("ProAsmcomppathInit", {sim::ModelRef{p_solid_handle}, table_size});
  if (call.Failed()) return call.Status();
  sim::Model* top = call.state().LiveSolid(p_solid_handle);
  if (!top || !p_handle || !IsPathLength(table_size) || (table_size > 0 && !memb_id_tab))
    return PRO_TK_BAD_INPUTS;
  if (!Walk(call.state(), top, memb_id_tab, table_size)) return PRO_TK_GENERAL_ERROR;
  p_handle->owner = p_solid_handle;
  for (int i = 0; i < PRO_MAX_ASSEM_LEVEL; ++i)
    p_handle->comp_id_table[i] = i < table_size ? memb_id_tab[i] : -1;
  p_handle->table_num = table_size;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProAsmcomppathMdlGet(ProAsmcomppath* p_path, ProMdl* p_model) {
  sim::ToolkitCall call("ProAsmcomppathMdlGet", {sim::ModelRef{p_path ? p_path->owner : nullptr}});
  if (call.Failed()) return call.Status();
  if (!p_path || !p_model || !IsPathLength(p_path->table_num)) return PRO_TK_BAD_INPUTS;
  sim::Model* top = call.state().LiveSolid(p_path->owner);
  if (!top) return PRO_TK_BAD_INPUTS;
  sim::Model* model = Walk(call.state(), top, p_path->comp_id_table, p_path->table_num);
  if (!model) return PRO_TK_GENERAL_ERROR;
  *p_model = sim::Handle(model);
  return PRO_TK_NO_ERROR;
}
