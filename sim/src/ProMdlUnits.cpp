// Unit systems of solids, from the model file's "unitSystems" and
// "principalUnitSystem"; a file without them has the host's standard set.
#include "ProMdlUnits.h"

#include "CodePage.h"
#include "HostMemory.h"
#include "ModelFiles.h"
#include "Text.h"
#include "ToolkitCall.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

const std::vector<std::wstring> kStandardSystems = {
    L"Centimeter Gram Second (CGS)", L"Foot Pound Second (FPS)",        L"Inch lbm Second (IPS)",
    L"Meter Kilogram Second (MKS)",  L"millimeter Kilogram Sec (mmKs)", L"millimeter Newton Second (mmNs)"};
constexpr wchar_t kStandardPrincipal[] = L"millimeter Newton Second (mmNs)";

std::vector<std::wstring> Systems(const sim::Model& model) {
  json listed = json::parse(sim::DocumentKey(model, "unitSystems"), nullptr, false);
  if (!listed.is_array()) return kStandardSystems;
  std::vector<std::wstring> systems;
  for (const json& name : listed) {
    if (name.is_string()) systems.push_back(platform::ToWide(name.get<std::string>()));
  }
  return systems;
}

std::wstring Principal(const sim::Model& model) {
  json named = json::parse(sim::DocumentKey(model, "principalUnitSystem"), nullptr, false);
  if (named.is_string()) return platform::ToWide(named.get<std::string>());
  std::vector<std::wstring> systems = Systems(model);
  bool standard = std::find(systems.begin(), systems.end(), kStandardPrincipal) != systems.end();
  return standard || systems.empty() ? kStandardPrincipal : systems.front();
}

ProUnitsystem System(ProMdl owner, const std::wstring& name) {
  ProUnitsystem system{owner, {}};
  sim::CopyText(system.name, PRO_NAME_SIZE, name);
  return system;
}

}  // namespace

extern "C" ProError ProMdlPrincipalunitsystemGet(ProMdl mdl, ProUnitsystem* principal_system) {
  sim::ToolkitCall call("ProMdlPrincipalunitsystemGet", {sim::ModelRef{mdl}});
  if (call.Failed()) return call.Status();
  const sim::Model* model = call.state().LiveSolid(mdl);
  if (!model || !principal_system) return PRO_TK_BAD_INPUTS;
  *principal_system = System(mdl, Principal(*model));
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlPrincipalunitsystemSet(ProMdl mdl, ProUnitsystem* new_system,
                                                 ProUnitConvertType type, ProBoolean ignore_param_units,
                                                 int regeneration_flags) {
  sim::ToolkitCall call("ProMdlPrincipalunitsystemSet",
                        {sim::ModelRef{mdl}, new_system ? new_system->name : nullptr, static_cast<int>(type),
                         static_cast<int>(ignore_param_units), regeneration_flags});
  if (call.Failed()) return call.Status();
  sim::Model* model = call.state().LiveSolid(mdl);
  if (!model || !new_system) return PRO_TK_BAD_INPUTS;
  if (type != PRO_UNITCONVERT_SAME_DIMS && type != PRO_UNITCONVERT_SAME_SIZE) return PRO_TK_BAD_INPUTS;
  std::vector<std::wstring> systems = Systems(*model);
  if (std::find(systems.begin(), systems.end(), new_system->name) == systems.end()) return PRO_TK_E_NOT_FOUND;
  sim::SetDocumentKey(*model, "principalUnitSystem", json(platform::ToNarrow(new_system->name)).dump());
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlUnitsystemsCollect(ProMdl mdl, ProUnitsystem** systems) {
  sim::ToolkitCall call("ProMdlUnitsystemsCollect", {sim::ModelRef{mdl}});
  if (call.Failed()) return call.Status();
  const sim::Model* model = call.state().LiveSolid(mdl);
  if (!model || !systems) return PRO_TK_BAD_INPUTS;
  std::vector<ProUnitsystem> collected;
  for (const std::wstring& name : Systems(*model)) collected.push_back(System(mdl, name));
  void* array = sim::NewArray(0, sizeof(ProUnitsystem), std::max<int>(1, collected.size()));
  if (!array) return PRO_TK_OUT_OF_MEMORY;
  if (!collected.empty() &&
      !sim::ArrayInsert(array, 0, static_cast<int>(collected.size()), collected.data())) {
    sim::FreeArray(array);
    return PRO_TK_OUT_OF_MEMORY;
  }
  *systems = static_cast<ProUnitsystem*>(array);
  return PRO_TK_NO_ERROR;
}
