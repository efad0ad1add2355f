// Feature visits of solids.
#include "ProSolid.h"

#include "ToolkitCall.h"

// The callbacks run without the host held: a model's features never change
// once it is in session, and a callback may wait for a thread that calls the
// toolkit.
extern "C" ProError ProSolidFeatVisit(ProSolid p_handle, ProFeatureVisitAction visit_action,
                                      ProFeatureFilterAction filter_action, ProAppData app_data) {
  sim::ToolkitCall call("ProSolidFeatVisit", {sim::ModelRef{p_handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* solid = call.state().LiveSolid(p_handle);
  if (!solid || !visit_action) return PRO_TK_BAD_INPUTS;
  std::vector<int> ids = solid->FeatureIds();
  call.Unlock();

  bool visited = false;
  for (int id : ids) {
    ProFeature feature{PRO_FEATURE, id, p_handle};
    ProError filterStatus = filter_action ? filter_action(&feature, app_data) : PRO_TK_NO_ERROR;
    if (filterStatus == PRO_TK_CONTINUE) continue;
    visited = true;
    if (ProError status = visit_action(&feature, filterStatus, app_data)) return status;
  }
  return visited ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
}
