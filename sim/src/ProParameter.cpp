// Parameters of models. The simulated host keeps parameters of whole models
// only, in the order of the model file; names compare without regard to case
// as the host's do.
#include "ProParameter.h"

#include "HostMemory.h"
#include "Text.h"
#include "ToolkitCall.h"
#include "UnitSystems.h"

#include <algorithm>
#include <vector>

namespace {

bool IsModelItem(const ProModelitem& item) {
  return item.type == PRO_PART || item.type == PRO_ASSEMBLY || item.type == PRO_DRAWING;
}

sim::ParameterDef* Find(sim::Model& model, const wchar_t* name) {
  auto& parameters = model.def.parameters;
  auto found = std::find_if(parameters.begin(), parameters.end(), [&](const sim::ParameterDef& parameter) {
    return sim::SameNoCase(parameter.name, name);
  });
  return found == parameters.end() ? nullptr : &*found;
}

void Describe(ProParameter* param, sim::Model* owner, const std::wstring& name) {
  param->type = PRO_PARAMETER;
  sim::CopyText(param->id, PRO_NAME_SIZE, name);
  param->owner.type = PRM_MODEL;
  param->owner.who.model = sim::Handle(owner);
}

sim::Model* Owner(const sim::HostState& state, const ProParameter* param) {
  if (!param || param->owner.type != PRM_MODEL) return nullptr;
  return state.LiveModel(param->owner.who.model);
}

sim::LogArg Named(const ProParameter* param) { return param ? sim::LogArg(param->id) : sim::LogArg(""); }

// The parameter a handle names, or the status that says why there is none.
struct Lookup {
  ProError status = PRO_TK_NO_ERROR;
  sim::Model* owner = nullptr;
  sim::ParameterDef* parameter = nullptr;
};

Lookup Resolve(const sim::HostState& state, ProParameter* param) {
  if (!param) return {PRO_TK_BAD_INPUTS};
  sim::Model* owner = Owner(state, param);
  if (!owner) return {PRO_TK_E_NOT_FOUND};
  sim::ParameterDef* parameter = Find(*owner, param->id);
  if (!parameter) return {PRO_TK_GENERAL_ERROR};
  return {PRO_TK_NO_ERROR, owner, parameter};
}

bool IsValueType(ProParamvalueType type) { return type >= PRO_PARAM_DOUBLE && type <= PRO_PARAM_BOOLEAN; }

void Store(sim::ParameterDef& parameter, const ProParamvalue& value) {
  parameter.type = value.type;
  switch (value.type) {
    case PRO_PARAM_DOUBLE:
      parameter.number = value.value.d_val;
      break;
    case PRO_PARAM_INTEGER:
      parameter.integer = value.value.i_val;
      break;
    case PRO_PARAM_BOOLEAN:
      parameter.integer = value.value.l_val != 0 ? 1 : 0;
      break;
    default:
      parameter.text = std::wstring(value.value.s_val, wcsnlen(value.value.s_val, PRO_LINE_SIZE - 1));
  }
}

}  // namespace

extern "C" ProError ProParameterInit(ProModelitem* owner, ProName name, ProParameter* param) {
  sim::ToolkitCall call("ProParameterInit", {sim::ModelRef{owner ? owner->owner : nullptr}, name});
  if (call.Failed()) return call.Status();
  if (!owner || !name || !param) return PRO_TK_BAD_INPUTS;
  sim::Model* model = call.state().LiveModel(owner->owner);
  if (!model) return PRO_TK_BAD_CONTEXT;
  if (!IsModelItem(*owner)) return PRO_TK_E_NOT_FOUND;
  const sim::ParameterDef* parameter = Find(*model, name);
  if (!parameter) return PRO_TK_E_NOT_FOUND;
  Describe(param, model, parameter->name);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProParameterValueWithUnitsGet(ProParameter* param, ProParamvalue* proval,
                                                  ProUnititem* units) {
  sim::ToolkitCall call("ProParameterValueWithUnitsGet", {Named(param)});
  if (call.Failed()) return call.Status();
  if (!proval) return PRO_TK_BAD_INPUTS;
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  const sim::ParameterDef& parameter = *found.parameter;
  *proval = {};
  proval->type = parameter.type;
  switch (parameter.type) {
    case PRO_PARAM_DOUBLE:
      // Asked without a unit, the host answers in the owner model's units.
      proval->value.d_val =
          units ? parameter.number : sim::InPrincipalUnits(*found.owner, parameter.number, parameter.unit);
      break;
    case PRO_PARAM_INTEGER:
      proval->value.i_val = parameter.integer;
      break;
    case PRO_PARAM_BOOLEAN:
      proval->value.l_val = static_cast<short>(parameter.integer);
      break;
    default:
      sim::CopyText(proval->value.s_val, PRO_LINE_SIZE, parameter.text);
  }
  if (units) {
    units->owner = sim::Handle(found.owner);
    sim::CopyText(units->name, PRO_NAME_SIZE, parameter.unit);
  }
  return PRO_TK_NO_ERROR;
}

// A value of another type than the parameter's is refused; units null keep
// the parameter's unit.
extern "C" ProError ProParameterValueWithUnitsSet(ProParameter* param, ProParamvalue* proval,
                                                  ProUnititem* units) {
  sim::ToolkitCall call("ProParameterValueWithUnitsSet", {Named(param)});
  if (call.Failed()) return call.Status();
  if (!proval) return PRO_TK_BAD_INPUTS;
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  if (proval->type != found.parameter->type) return PRO_TK_INVALID_TYPE;
  Store(*found.parameter, *proval);
  if (units) found.parameter->unit = std::wstring(units->name, wcsnlen(units->name, PRO_NAME_SIZE - 1));
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProParameterWithUnitsCreate(ProModelitem* owner, ProName name, ProParamvalue* proval,
                                                ProUnititem* units, ProParameter* param) {
  sim::ToolkitCall call("ProParameterWithUnitsCreate", {sim::ModelRef{owner ? owner->owner : nullptr}, name});
  if (call.Failed()) return call.Status();
  if (!owner || !name || !*name || !proval || !param || !IsValueType(proval->type)) return PRO_TK_BAD_INPUTS;
  sim::Model* model = call.state().LiveModel(owner->owner);
  if (!model || !IsModelItem(*owner)) return PRO_TK_BAD_CONTEXT;
  if (Find(*model, name)) return PRO_TK_E_FOUND;
  sim::ParameterDef parameter;
  parameter.name = std::wstring(name, wcsnlen(name, PRO_NAME_SIZE - 1));
  Store(parameter, *proval);
  if (units) parameter.unit = std::wstring(units->name, wcsnlen(units->name, PRO_NAME_SIZE - 1));
  model->def.parameters.push_back(parameter);
  Describe(param, model, parameter.name);
  return PRO_TK_NO_ERROR;
}

// The callbacks run without the host held, as in the feature visit.
extern "C" ProError ProParameterVisit(ProModelitem* owner, ProParameterFilter filter,
                                      ProParameterAction action, ProAppData data) {
  sim::ToolkitCall call("ProParameterVisit", {sim::ModelRef{owner ? owner->owner : nullptr}});
  if (call.Failed()) return call.Status();
  if (!owner || !action) return PRO_TK_BAD_INPUTS;
  sim::Model* model = call.state().LiveModel(owner->owner);
  if (!model || !IsModelItem(*owner)) return PRO_TK_BAD_CONTEXT;
  std::vector<std::wstring> names;
  for (const sim::ParameterDef& parameter : model->def.parameters) names.push_back(parameter.name);
  call.Unlock();

  bool visited = false;
  for (const std::wstring& name : names) {
    ProParameter param{};
    Describe(&param, model, name);
    ProError filterStatus = filter ? filter(&param, data) : PRO_TK_NO_ERROR;
    if (filterStatus == PRO_TK_CONTINUE) continue;
    visited = true;
    if (ProError status = action(&param, filterStatus, data)) return status;
  }
  return visited ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
}

extern "C" ProError ProParameterDescriptionGet(ProParameter* param, wchar_t** description) {
  sim::ToolkitCall call("ProParameterDescriptionGet", {Named(param)});
  if (call.Failed()) return call.Status();
  if (!description) return PRO_TK_BAD_INPUTS;
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  if (found.parameter->description.empty()) return PRO_TK_E_NOT_FOUND;
  *description = sim::NewHostString(found.parameter->description);
  return *description ? PRO_TK_NO_ERROR : PRO_TK_OUT_OF_MEMORY;
}

extern "C" ProError ProParameterDescriptionSet(ProParameter* param, wchar_t* description) {
  sim::ToolkitCall call("ProParameterDescriptionSet", {Named(param), description});
  if (call.Failed()) return call.Status();
  if (!description) return PRO_TK_BAD_INPUTS;
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  found.parameter->description = description;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProParameterDesignationAdd(ProParameter* param) {
  sim::ToolkitCall call("ProParameterDesignationAdd", {Named(param)});
  if (call.Failed()) return call.Status();
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  if (found.parameter->designated) return PRO_TK_E_FOUND;
  found.parameter->designated = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProParameterDesignationRemove(ProParameter* param) {
  sim::ToolkitCall call("ProParameterDesignationRemove", {Named(param)});
  if (call.Failed()) return call.Status();
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  if (!found.parameter->designated) return PRO_TK_E_NOT_FOUND;
  found.parameter->designated = false;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProParameterDesignationVerify(ProParameter* param, ProBoolean* p_exist) {
  sim::ToolkitCall call("ProParameterDesignationVerify", {Named(param)});
  if (call.Failed()) return call.Status();
  if (!p_exist) return PRO_TK_BAD_INPUTS;
  Lookup found = Resolve(call.state(), param);
  if (found.status) return found.status;
  *p_exist = found.parameter->designated ? PRO_B_TRUE : PRO_B_FALSE;
  return PRO_TK_NO_ERROR;
}
