// Parts.
#include "ProPart.h"

#include "ToolkitCall.h"

extern "C" ProError ProPartDensityGet(ProPart part, double* density) {
  sim::ToolkitCall call("ProPartDensityGet", {sim::ModelRef{part}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(part);
  if (!live || live->def.type != PRO_MDL_PART || !density) return PRO_TK_BAD_INPUTS;
  if (!live->def.density) return PRO_TK_E_NOT_FOUND;
  *density = *live->def.density;
  return PRO_TK_NO_ERROR;
}
