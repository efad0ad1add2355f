#include "Session.h"

#include "CodePage.h"
#include "FileLookup.h"
#include "Files.h"
#include "ModelDocument.h"
#include "Text.h"

namespace fs = std::filesystem;

namespace sim {
namespace {

std::optional<ModelFile> SearchModelFile(const HostState& state, const ModelFileName& name) {
  std::vector<fs::path> dirs{state.currentDir};
  if (!state.sessionDir.empty()) dirs.push_back(state.sessionDir);
  dirs.insert(dirs.end(), state.searchPath.begin(), state.searchPath.end());
  for (const fs::path& dir : dirs) {
    if (auto found = FindModelFile(dir, name)) return found;
  }
  return std::nullopt;
}

Model* Resolve(Host& host, const std::wstring& fileName) {
  return LoadModel(host, fileName, PRO_MDLFILE_UNUSED).model;
}

// The model is in session before its references are, so that an assembly
// that names itself ends instead of recursing.
Model* Enter(Host& host, std::unique_ptr<Model> model) {
  Model* entered = host.Keep(std::move(model));
  host.state.models.push_back(entered);
  for (const ComponentDef& component : entered->def.components) {
    entered->componentModels.push_back(Resolve(host, component.model));
  }
  for (const std::wstring& solid : entered->def.solids) {
    if (Model* found = Resolve(host, solid)) entered->solids.push_back(found);
  }
  return entered;
}

bool IsModelType(ProMdlType type) {
  return type == PRO_MDL_PART || type == PRO_MDL_ASSEMBLY || type == PRO_MDL_DRAWING;
}

}  // namespace

Model* FindInSession(const HostState& state, ProMdlType type, std::wstring_view name) {
  for (bool exact : {true, false}) {
    auto same = [exact](std::wstring_view a, std::wstring_view b) {
      return exact ? a == b : SameNoCase(a, b);
    };
    for (Model* model : state.models) {
      if (model->def.type == type && (same(model->stem, name) || same(model->def.name, name))) return model;
    }
  }
  return nullptr;
}

LoadResult LoadModel(Host& host, std::wstring_view path, ProMdlfileType fileType) {
  if (path.empty()) return {PRO_TK_BAD_INPUTS};
  HostState& state = host.state;
  fs::path native = platform::NativePath(path);
  ModelFileName name = ParseModelFileName(platform::ToWide(native.filename().string()));
  ProMdlType type =
      fileType == PRO_MDLFILE_UNUSED ? TypeOfExtension(name.extension) : static_cast<ProMdlType>(fileType);
  if (!IsModelType(type)) return {PRO_TK_BAD_INPUTS};
  if (name.extension.empty()) name.extension = ExtensionOfType(type);
  if (TypeOfExtension(name.extension) != type) return {PRO_TK_INVALID_TYPE};

  if (Model* known = FindInSession(state, type, name.stem)) return {PRO_TK_NO_ERROR, known};
  std::optional<ModelFile> file =
      native.has_parent_path() ? FindModelFile(NormalDir(state.currentDir / native.parent_path()), name)
                               : SearchModelFile(state, name);
  if (!file) return {PRO_TK_E_NOT_FOUND};

  std::optional<std::string> bytes = ReadBytes(file->path);
  if (!bytes) return {PRO_TK_CANT_OPEN};
  auto model = std::make_unique<Model>();
  model->document = std::move(*bytes);
  if (ProError status = ParseModelDocument(model->document, model->def)) return {status};
  if (model->def.type != type) return {PRO_TK_INVALID_TYPE};
  if (model->def.name.empty()) model->def.name = UpperCase(name.stem);
  if (Model* known = FindInSession(state, type, model->def.name)) return {PRO_TK_NO_ERROR, known};

  model->fileName = platform::ToWide(file->path.filename().string());
  model->stem = ParseModelFileName(model->fileName).stem;
  model->origin = file->path;
  model->version = file->version;
  return {PRO_TK_NO_ERROR, Enter(host, std::move(model))};
}

Model* AddBuiltModel(Host& host, const std::wstring& fileName, const ModelDef& def) {
  auto model = std::make_unique<Model>();
  ModelFileName name = ParseModelFileName(fileName);
  model->def = def;
  if (model->def.name.empty()) model->def.name = UpperCase(name.stem);
  model->fileName = fileName;
  model->stem = name.stem;
  model->version = name.version.value_or(0);
  model->document = ModelDocument(model->def);
  return Enter(host, std::move(model));
}

}  // namespace sim
