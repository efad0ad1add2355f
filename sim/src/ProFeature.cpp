// Feature status: a component is suppressed or active as its model file
// says; every other feature is active.
#include "ProFeature.h"

#include "ToolkitCall.h"

#include <algorithm>

extern "C" ProError ProFeatureStatusGet(ProFeature* p_feat_handle, ProFeatStatus* p_status) {
  sim::ToolkitCall call("ProFeatureStatusGet", {sim::ModelRef{p_feat_handle ? p_feat_handle->owner : nullptr},
                                                p_feat_handle ? p_feat_handle->id : PRO_VALUE_UNUSED});
  if (call.Failed()) return call.Status();
  if (!p_feat_handle || !p_status) return PRO_TK_BAD_INPUTS;
  const sim::Model* owner = call.state().LiveSolid(p_feat_handle->owner);
  if (!owner) return PRO_TK_BAD_INPUTS;
  int id = p_feat_handle->id;
  const auto& components = owner->def.components;
  auto component = std::find_if(components.begin(), components.end(),
                                [id](const sim::ComponentDef& c) { return c.id == id; });
  if (component != components.end()) {
    *p_status = component->suppressed ? PRO_FEAT_SUPPRESSED : PRO_FEAT_ACTIVE;
    return PRO_TK_NO_ERROR;
  }
  const auto& features = owner->def.features;
  if (std::none_of(features.begin(), features.end(), [id](const sim::FeatureDef& f) { return f.id == id; }))
    return PRO_TK_E_NOT_FOUND;
  *p_status = PRO_FEAT_ACTIVE;
  return PRO_TK_NO_ERROR;
}
