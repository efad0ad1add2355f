// Drawings and the models they show.
#include "ProDrawing.h"

#include "HostMemory.h"
#include "ToolkitCall.h"

extern "C" ProError ProDrawingSolidsCollect(ProDrawing drawing, ProSolid** solids) {
  sim::ToolkitCall call("ProDrawingSolidsCollect", {sim::ModelRef{drawing}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(drawing);
  if (!live || live->def.type != PRO_MDL_DRAWING || !solids) return PRO_TK_BAD_INPUTS;
  if (live->solids.empty()) return PRO_TK_E_NOT_FOUND;
  int count = static_cast<int>(live->solids.size());
  void* array = sim::NewArray(count, sizeof(ProSolid), 1);
  if (!array) return PRO_TK_OUT_OF_MEMORY;
  auto* handles = static_cast<ProSolid*>(array);
  for (int i = 0; i < count; ++i) handles[i] = static_cast<ProSolid>(sim::Handle(live->solids[i]));
  *solids = handles;
  return PRO_TK_NO_ERROR;
}
