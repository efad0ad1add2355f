// Models in session: names, modification, erasing, listing.
#include "ProMdl.h"

#include "FileLookup.h"
#include "HostMemory.h"
#include "Session.h"
#include "Text.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <cwctype>

namespace {

// The host's model names: letters, digits, "_" and "-".
bool IsModelName(std::wstring_view name) {
  return !name.empty() && name.size() < PRO_MDLNAME_SIZE &&
         std::all_of(name.begin(), name.end(),
                     [](wchar_t c) { return std::iswalnum(c) || c == L'_' || c == L'-'; });
}

bool NamesFile(const std::wstring& fileName, std::wstring_view stem, ProMdlType type) {
  sim::ModelFileName parsed = sim::ParseModelFileName(fileName);
  return sim::SameNoCase(parsed.stem, stem) && sim::TypeOfExtension(parsed.extension) == type;
}

// Assemblies and drawings that refer to the renamed model refer to the new
// name, and so change too, as they do in the host.
void FollowRename(sim::HostState& state, const sim::Model& renamed, const std::wstring& oldStem,
                  const std::wstring& newFileName) {
  for (sim::Model* model : state.models) {
    for (size_t i = 0; i < model->def.components.size(); ++i) {
      if (model->componentModels[i] != &renamed) continue;
      model->def.components[i].model = newFileName;
      model->modified = true;
    }
    for (std::wstring& solid : model->def.solids) {
      if (model->def.type != PRO_MDL_DRAWING || !NamesFile(solid, oldStem, renamed.def.type)) continue;
      solid = newFileName;
      model->modified = true;
    }
  }
}

bool IsUsedByOthers(const sim::HostState& state, const sim::Model* model) {
  return std::any_of(state.models.begin(), state.models.end(), [&](const sim::Model* other) {
    return other != model &&
           (std::count(other->componentModels.begin(), other->componentModels.end(), model) ||
            std::count(other->solids.begin(), other->solids.end(), model));
  });
}

// Without a type the name may be a file name, version and all, whose
// extension gives the type; a bare name finds a model of any type.
sim::Model* FindUntyped(const sim::HostState& state, std::wstring_view name) {
  sim::ModelFileName parsed = sim::ParseModelFileName(name);
  ProMdlType type = sim::TypeOfExtension(parsed.extension);
  if (type != PRO_MDL_UNUSED) return sim::FindInSession(state, type, parsed.stem);
  for (ProMdlType any : {PRO_MDL_ASSEMBLY, PRO_MDL_PART, PRO_MDL_DRAWING}) {
    if (sim::Model* model = sim::FindInSession(state, any, name)) return model;
  }
  return nullptr;
}

}  // namespace

// The session name changes at once; the files keep the old name until the
// next save writes the new one.
extern "C" ProError ProMdlnameRename(ProMdl handle, ProMdlName new_name) {
  sim::ToolkitCall call("ProMdlnameRename", {sim::ModelRef{handle}, new_name});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  sim::Model* model = state.LiveModel(handle);
  if (!model || !new_name || !IsModelName(new_name)) return PRO_TK_BAD_INPUTS;
  sim::Model* holder = sim::FindInSession(state, model->def.type, new_name);
  if (holder && holder != model) return PRO_TK_BAD_CONTEXT;
  std::wstring oldStem = model->stem;
  model->stem = sim::LowerCase(new_name);
  model->def.name = sim::UpperCase(new_name);
  model->modified = true;
  FollowRename(state, *model, oldStem, model->stem + L"." + sim::ExtensionOfType(model->def.type));
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlCommonnameSet(ProMdl model, wchar_t* common_name) {
  sim::ToolkitCall call("ProMdlCommonnameSet", {sim::ModelRef{model}, common_name});
  if (call.Failed()) return call.Status();
  sim::Model* live = call.state().LiveModel(model);
  if (!live || !common_name) return PRO_TK_BAD_INPUTS;
  live->def.commonName = common_name;
  live->modified = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlModificationVerify(ProMdl handle, ProBoolean* p_modified) {
  sim::ToolkitCall call("ProMdlModificationVerify", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* model = call.state().LiveModel(handle);
  if (!model || !p_modified) return PRO_TK_BAD_INPUTS;
  *p_modified = model->modified ? PRO_B_TRUE : PRO_B_FALSE;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlInit(ProName name, ProMdlType type, ProMdl* p_mdl_handle) {
  sim::ToolkitCall call("ProMdlInit", {name, static_cast<int>(type)});
  if (call.Failed()) return call.Status();
  if (!name || !*name || !p_mdl_handle) return PRO_TK_BAD_INPUTS;
  sim::Model* model =
      type == PRO_MDL_UNUSED ? FindUntyped(call.state(), name) : sim::FindInSession(call.state(), type, name);
  if (!model) return PRO_TK_E_NOT_FOUND;
  *p_mdl_handle = sim::Handle(model);
  return PRO_TK_NO_ERROR;
}

// A model that an assembly or a drawing in session uses stays, as in the
// host.
extern "C" ProError ProMdlErase(ProMdl handle) {
  sim::ToolkitCall call("ProMdlErase", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  sim::Model* model = state.LiveModel(handle);
  if (!model) return PRO_TK_BAD_INPUTS;
  if (IsUsedByOthers(state, model)) return PRO_TK_E_IN_USE;
  if (std::find(state.pendingErase.begin(), state.pendingErase.end(), model) == state.pendingErase.end()) {
    state.pendingErase.push_back(model);
  }
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProSessionMdlList(ProMdlType model_type, ProMdl** p_model_array, int* p_count) {
  sim::ToolkitCall call("ProSessionMdlList", {static_cast<int>(model_type)});
  if (call.Failed()) return call.Status();
  if (!p_model_array || !p_count) return PRO_TK_BAD_INPUTS;
  std::vector<ProMdl> found;
  for (sim::Model* model : call.state().models) {
    if (model->def.type == model_type) found.push_back(sim::Handle(model));
  }
  *p_model_array = nullptr;
  *p_count = 0;
  if (found.empty()) return PRO_TK_E_NOT_FOUND;
  void* array = sim::NewArray(0, sizeof(ProMdl), static_cast<int>(found.size()));
  if (!array || !sim::ArrayInsert(array, 0, static_cast<int>(found.size()), found.data())) {
    if (array) sim::FreeArray(array);
    return PRO_TK_OUT_OF_MEMORY;
  }
  *p_model_array = static_cast<ProMdl*>(array);
  *p_count = static_cast<int>(found.size());
  return PRO_TK_NO_ERROR;
}
