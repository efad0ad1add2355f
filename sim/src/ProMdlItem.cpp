// A model as a model item, and its subtype.
#include "ProMdl.h"

#include "ToolkitCall.h"

#include <optional>

// The item's id is the model's number in the session, counted from 1 in load
// order, as the host numbers the models it holds.
extern "C" ProError ProMdlToModelitem(ProMdl mdl, ProModelitem* p_model_item) {
  sim::ToolkitCall call("ProMdlToModelitem", {sim::ModelRef{mdl}});
  if (call.Failed()) return call.Status();
  const auto& models = call.state().models;
  std::optional<size_t> position = models.Position(mdl);
  if (!position || !p_model_item) return PRO_TK_BAD_INPUTS;
  p_model_item->type = static_cast<ProType>(models.Find(mdl)->def.type);
  p_model_item->id = static_cast<int>(*position) + 1;
  p_model_item->owner = mdl;
  return PRO_TK_NO_ERROR;
}

// Only solids have a subtype.
extern "C" ProError ProMdlSubtypeGet(ProMdl model, ProMdlsubtype* subtype) {
  sim::ToolkitCall call("ProMdlSubtypeGet", {sim::ModelRef{model}});
  if (subtype) *subtype = PROMDLSTYPE_NONE;
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveModel(model);
  if (!live || !subtype) return PRO_TK_BAD_INPUTS;
  if (!live->IsSolid()) return PRO_TK_BAD_CONTEXT;
  *subtype = static_cast<ProMdlsubtype>(live->def.subtype);
  return PRO_TK_NO_ERROR;
}
