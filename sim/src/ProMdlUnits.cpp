// Unit systems of solids, from the model file's "unitSystems" and
// "principalUnitSystem"; a file without them has the host's standard set.
#include "ProMdlUnits.h"

#include "CodePage.h"
#include "HostMemory.h"
#include "ModelFiles.h"
#include "Text.h"
#include "ToolkitCall.h"
#include "UnitSystems.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

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
  *principal_system = System(mdl, sim::PrincipalUnitSystem(*model));
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
  std::vector<std::wstring> systems = sim::UnitSystems(*model);
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
  for (const std::wstring& name : sim::UnitSystems(*model)) collected.push_back(System(mdl, name));
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
