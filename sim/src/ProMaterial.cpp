// Materials of parts. A part holds materials read from material files and
// names one of them current: its PTC_MATERIAL_NAME says which, and its
// density, and with it a mass worked out from the volume, is the current
// material's. Material names are upper case, as the host keeps them.
#include "ProMaterial.h"

#include "FileLookup.h"
#include "Files.h"
#include "HostMemory.h"
#include "MaterialFile.h"
#include "ProPart.h"
#include "Text.h"
#include "ToolkitCall.h"
#include "UnitSystems.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kMaterialNameParameter[] = L"PTC_MATERIAL_NAME";

// The part a handle names, or the status that says why there is none.
struct PartLookup {
  ProError status = PRO_TK_NO_ERROR;
  sim::Model* part = nullptr;
};

PartLookup FindPart(const sim::HostState& state, const void* handle) {
  sim::Model* model = state.LiveSolid(handle);
  if (!model) return {PRO_TK_BAD_INPUTS};
  if (model->def.type != PRO_MDL_PART) return {PRO_TK_INVALID_TYPE};
  return {PRO_TK_NO_ERROR, model};
}

std::vector<sim::MaterialDef>::iterator Held(sim::Model& part, std::wstring_view name) {
  auto& materials = part.def.materials;
  return std::find_if(materials.begin(), materials.end(),
                      [&](const sim::MaterialDef& held) { return sim::SameNoCase(held.name, name); });
}

std::wstring NameText(const wchar_t* name) { return std::wstring(name, wcsnlen(name, PRO_NAME_SIZE - 1)); }

// A material the part holds, named by the host's material handle.
struct HeldLookup {
  ProError status = PRO_TK_NO_ERROR;
  sim::Model* part = nullptr;
  std::vector<sim::MaterialDef>::iterator held;
};

HeldLookup FindHeld(const sim::HostState& state, const ProMaterial* material) {
  if (!material) return {PRO_TK_BAD_INPUTS};
  PartLookup found = FindPart(state, material->part);
  if (found.status) return {found.status};
  auto held = Held(*found.part, NameText(material->matl_name));
  if (held == found.part->def.materials.end()) return {PRO_TK_E_NOT_FOUND};
  return {PRO_TK_NO_ERROR, found.part, held};
}

void SetMaterialNameParameter(sim::Model& part, const std::wstring& name) {
  auto& parameters = part.def.parameters;
  auto found = std::find_if(parameters.begin(), parameters.end(), [](const sim::ParameterDef& parameter) {
    return sim::SameNoCase(parameter.name, kMaterialNameParameter);
  });
  if (found == parameters.end()) {
    if (name.empty()) return;
    found = parameters.emplace(parameters.end());
    found->name = kMaterialNameParameter;
  }
  found->type = PRO_PARAM_STRING;
  found->text = name;
}

// The part takes on its current material: the name, and the density when
// the material has one; a part with a volume then weighs volume times density.
void ApplyCurrentMaterial(sim::Model& part) {
  SetMaterialNameParameter(part, part.def.material);
  auto current = Held(part, part.def.material);
  if (current != part.def.materials.end() && current->density) {
    part.def.density = current->density;
    auto& properties = part.def.massProperties;
    if (properties && properties->volume > 0) properties->mass.reset();
  }
  part.modified = true;
}

// The option's directory, a relative one taken from the current directory;
// without the option the current directory itself.
fs::path MaterialDir(const sim::HostState& state) {
  auto option = state.configOptions.find(L"pro_material_dir");
  if (option == state.configOptions.end() || option->second.empty()) return state.currentDir;
  return sim::NormalDir(state.currentDir / platform::ResolvePath(option->second));
}

// The density of the material file `name` in `dir`, in the part's units;
// the status says why there is none.
ProError ReadMaterialFile(const fs::path& dir, const std::wstring& name, const sim::Model& part,
                          std::optional<double>& density) {
  std::optional<sim::MaterialDensity> read;
  if (std::optional<fs::path> mtl = sim::FindFileNoCase(dir, name + L".mtl")) {
    std::optional<std::string> text = sim::ReadBytes(*mtl);
    if (text) read = sim::ReadMtlDensity(*text);
  } else if (std::optional<fs::path> mat = sim::FindFileNoCase(dir, name + L".mat")) {
    std::optional<std::string> text = sim::ReadBytes(*mat);
    if (text) read = sim::ReadMatDensity(*text);
  } else {
    return PRO_TK_E_NOT_FOUND;
  }
  if (!read) return PRO_TK_GENERAL_ERROR;
  density = read->unit.empty() ? std::optional(read->value)
                               : sim::DensityInPrincipalUnits(part, read->value, read->unit);
  return density ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}

}  // namespace

extern "C" ProError ProPartMaterialsGet(ProSolid part, ProName** p_matl_names_arr) {
  sim::ToolkitCall call("ProPartMaterialsGet", {sim::ModelRef{part}});
  if (call.Failed()) return call.Status();
  if (!p_matl_names_arr || !sim::IsLiveArray(*p_matl_names_arr)) return PRO_TK_BAD_INPUTS;
  PartLookup found = FindPart(call.state(), part);
  if (found.status) return found.status;
  if (found.part->def.materials.empty()) return PRO_TK_E_NOT_FOUND;
  void* array = *p_matl_names_arr;
  ProError status = PRO_TK_NO_ERROR;
  for (const sim::MaterialDef& held : found.part->def.materials) {
    ProName name{};
    sim::CopyText(name, PRO_NAME_SIZE, held.name);
    if (!sim::ArrayInsert(array, sim::ArraySize(array), 1, name)) status = PRO_TK_OUT_OF_MEMORY;
  }
  *p_matl_names_arr = static_cast<ProName*>(array);
  return status;
}

// Deleting the current material leaves the part without one; its density
// stays as it was.
extern "C" ProError ProMaterialDelete(ProMaterial* p_material) {
  sim::ToolkitCall call("ProMaterialDelete", {sim::ModelRef{p_material ? p_material->part : nullptr},
                                              p_material ? p_material->matl_name : L""});
  if (call.Failed()) return call.Status();
  HeldLookup found = FindHeld(call.state(), p_material);
  if (found.status) return found.status;
  sim::Model& part = *found.part;
  auto held = found.held;
  bool current = sim::SameNoCase(held->name, part.def.material);
  part.def.materials.erase(held);
  if (current) {
    part.def.material.clear();
    SetMaterialNameParameter(part, L"");
  }
  part.modified = true;
  return PRO_TK_NO_ERROR;
}

// Reading a material the part holds reads it again; when it is the current
// one the part follows its new density.
extern "C" ProError ProMaterialfileRead(ProSolid part, ProName matl_name) {
  sim::ToolkitCall call("ProMaterialfileRead", {sim::ModelRef{part}, matl_name});
  if (call.Failed()) return call.Status();
  PartLookup found = FindPart(call.state(), part);
  if (found.status) return found.status;
  if (!matl_name || !*matl_name) return PRO_TK_BAD_INPUTS;
  sim::Model& model = *found.part;
  std::wstring name = sim::UpperCase(NameText(matl_name));
  std::optional<double> density;
  if (ProError status = ReadMaterialFile(MaterialDir(call.state()), name, model, density)) return status;
  auto held = Held(model, name);
  if (held == model.def.materials.end())
    model.def.materials.push_back({name, density});
  else
    held->density = density;
  if (sim::SameNoCase(name, model.def.material)) ApplyCurrentMaterial(model);
  model.modified = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMaterialCurrentSet(ProMaterial* p_material) {
  sim::ToolkitCall call("ProMaterialCurrentSet", {sim::ModelRef{p_material ? p_material->part : nullptr},
                                                  p_material ? p_material->matl_name : L""});
  if (call.Failed()) return call.Status();
  HeldLookup found = FindHeld(call.state(), p_material);
  if (found.status) return found.status;
  sim::Model& part = *found.part;
  part.def.material = found.held->name;
  ApplyCurrentMaterial(part);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProPartMaterialNameGet(ProPart part, ProName material_name) {
  sim::ToolkitCall call("ProPartMaterialNameGet", {sim::ModelRef{part}});
  if (call.Failed()) return call.Status();
  if (!material_name) return PRO_TK_BAD_INPUTS;
  PartLookup found = FindPart(call.state(), part);
  if (found.status) return found.status;
  if (found.part->def.material.empty()) return PRO_TK_E_NOT_FOUND;
  sim::CopyText(material_name, PRO_NAME_SIZE, found.part->def.material);
  return PRO_TK_NO_ERROR;
}
