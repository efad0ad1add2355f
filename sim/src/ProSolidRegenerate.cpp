// Regeneration. The simulated session has no geometry to rebuild, so a
// regeneration succeeds for every solid and changes nothing.
#include "ProSolid.h"

#include "ToolkitCall.h"

extern "C" ProError ProSolidRegenerate(ProSolid p_handle, int flags) {
  sim::ToolkitCall call("ProSolidRegenerate", {sim::ModelRef{p_handle}, flags});
  if (call.Failed()) return call.Status();
  return call.state().LiveSolid(p_handle) ? PRO_TK_NO_ERROR : PRO_TK_BAD_INPUTS;
}
