// Models on disk: save, backup, version data.
#include "ProMdl.h"

#include "FileLookup.h"
#include "Files.h"
#include "ModelFiles.h"
#include "Text.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <vector>

namespace fs = std::filesystem;

// A model that came from a file is saved beside it, a new one in the current
// directory; the version is one above both the model's and any found there.
// The message area tells the save, as the host does.
extern "C" ProError ProMdlSave(ProMdl handle) {
  sim::ToolkitCall call("ProMdlSave", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  sim::Model* model = call.state().LiveModel(handle);
  if (!model) return PRO_TK_BAD_INPUTS;
  fs::path dir = model->origin.empty() ? call.state().currentDir : model->origin.parent_path();
  int version = std::max(model->version, sim::HighestVersionIn(dir, *model)) + 1;
  std::wstring fileName = sim::VersionedFileName(*model, version);
  fs::path file = dir / platform::NativePath(fileName);
  std::string text = sim::SavedDocument(*model);
  if (!sim::WriteModelFile(file, text)) return PRO_TK_CANT_WRITE;
  model->document = std::move(text);
  model->origin = file;
  model->fileName = fileName;
  model->version = version;
  model->modified = false;
  call.state().ShowMessage(sim::UpperCase(model->stem + L"." + sim::ExtensionOfType(model->def.type)) +
                           L" has been saved.");
  return PRO_TK_NO_ERROR;
}

namespace {

// The model and, once each, every model it depends on: an assembly's
// components at every depth, a drawing's solids and theirs.
void CollectDependents(sim::Model* model, std::vector<sim::Model*>& models) {
  if (!model || std::find(models.begin(), models.end(), model) != models.end()) return;
  models.push_back(model);
  for (sim::Model* component : model->componentModels) CollectDependents(component, models);
  for (sim::Model* solid : model->solids) CollectDependents(solid, models);
}

}  // namespace

// The backup holds the model with everything it depends on, each under its
// own version number, so that backups of successive versions lie side by
// side as in the model's own directory.
extern "C" ProError ProMdlnameBackup(ProMdl handle, ProPath backup_dir) {
  sim::ToolkitCall call("ProMdlnameBackup", {sim::ModelRef{handle}, backup_dir});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  sim::Model* model = state.LiveModel(handle);
  if (!model || !backup_dir) return PRO_TK_BAD_INPUTS;
  fs::path dir =
      *backup_dir ? sim::NormalDir(state.currentDir / platform::ResolvePath(backup_dir)) : state.currentDir;
  std::error_code error;
  if (!fs::is_directory(dir, error)) return PRO_TK_INVALID_DIR;
  std::vector<sim::Model*> models;
  CollectDependents(model, models);
  for (const sim::Model* saved : models) {
    fs::path file = dir / platform::NativePath(sim::VersionedFileName(*saved, std::max(saved->version, 1)));
    if (!sim::WriteModelFile(file, sim::SavedDocument(*saved))) return PRO_TK_CANT_WRITE;
  }
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProMdlDataGet(ProMdl handle, ProMdldata* p_data) {
  sim::ToolkitCall call("ProMdlDataGet", {sim::ModelRef{handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* model = call.state().LiveModel(handle);
  if (!model || !p_data) return PRO_TK_BAD_INPUTS;
  *p_data = {};
  sim::CopyText(p_data->name, std::size(p_data->name), model->def.name);
  std::wstring type = sim::UpperCase(sim::ExtensionOfType(model->def.type));
  sim::CopyText(p_data->type, std::size(p_data->type), type);
  if (!model->origin.empty()) {
    sim::CopyText(p_data->path, std::size(p_data->path), sim::WideText(model->origin.parent_path()));
  }
  p_data->version = model->version;
  p_data->subclass = model->def.subtype;
  return PRO_TK_NO_ERROR;
}
