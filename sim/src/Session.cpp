#include "Session.h"

#include "CodePage.h"
#include "Files.h"
#include "ModelDocument.h"
#include "Text.h"

#include <algorithm>
#include <map>
#include <span>

namespace fs = std::filesystem;

namespace sim {
namespace {

bool IsModelType(ProMdlType type) {
  return type == PRO_MDL_PART || type == PRO_MDL_ASSEMBLY || type == PRO_MDL_DRAWING;
}

std::string TypeName(ProMdlType type) {
  switch (type) {
    case PRO_MDL_PART:
      return "a part";
    case PRO_MDL_ASSEMBLY:
      return "an assembly";
    default:
      return "a drawing";
  }
}

std::vector<fs::path> SearchDirs(const HostState& state) {
  std::vector<fs::path> dirs{state.currentDir};
  if (!state.sessionDir.empty()) dirs.push_back(state.sessionDir);
  dirs.insert(dirs.end(), state.searchPath.begin(), state.searchPath.end());
  return dirs;
}

std::string Joined(const std::vector<fs::path>& dirs) {
  std::string text;
  for (const fs::path& dir : dirs) text += (text.empty() ? "" : ", ") + dir.string();
  return text;
}

// The file names of a chain of components that leads from a model of
// `fresh` back to itself, the first model named again at the end; empty
// when there is none. Only models of one load can form a cycle, as models
// loaded before hold none of them.
std::string CycleAmong(std::span<Model* const> fresh) {
  enum class Mark { Unvisited, OnPath, Done };
  std::map<const Model*, Mark> marks;
  for (const Model* model : fresh) marks[model] = Mark::Unvisited;
  struct Step {
    const Model* model;
    size_t next = 0;
  };
  for (const Model* start : fresh) {
    if (marks[start] != Mark::Unvisited) continue;
    std::vector<Step> path{{start}};
    marks[start] = Mark::OnPath;
    while (!path.empty()) {
      Step& step = path.back();
      if (step.next == step.model->componentModels.size()) {
        marks[step.model] = Mark::Done;
        path.pop_back();
        continue;
      }
      const Model* child = step.model->componentModels[step.next++];
      auto mark = marks.find(child);
      if (mark == marks.end() || mark->second == Mark::Done) continue;
      if (mark->second == Mark::Unvisited) {
        mark->second = Mark::OnPath;
        path.push_back({child});
        continue;
      }
      auto from = std::find_if(path.begin(), path.end(), [&](const Step& s) { return s.model == child; });
      std::string names;
      for (auto it = from; it != path.end(); ++it) names += platform::ToNarrow(it->model->fileName) + " > ";
      return names + platform::ToNarrow(child->fileName);
    }
  }
  return {};
}

}  // namespace

Loader::Opened Loader::Failed(ProError status, std::string error) {
  return {status, std::move(error), nullptr, nullptr};
}

Loader::Opened Loader::Known(Model* model) { return {PRO_TK_NO_ERROR, {}, model, nullptr}; }

Loader::Loader(Host& host) : host_(host), state_(host.state) {
  for (Model* model : state_.models) Index(model);
}

void Loader::Index(Model* model) {
  for (const std::wstring* key : {&model->stem, &model->def.name}) {
    exact_.try_emplace({model->def.type, *key}, model);
    folded_.try_emplace({model->def.type, LowerCase(*key)}, model);
  }
}

Model* Loader::Find(ProMdlType type, std::wstring_view name) const {
  if (auto found = exact_.find({type, std::wstring(name)}); found != exact_.end()) return found->second;
  auto found = folded_.find({type, LowerCase(name)});
  return found == folded_.end() ? nullptr : found->second;
}

Loader::Opened Loader::Open(std::wstring_view path, ProMdlfileType fileType) {
  std::string given = platform::ToNarrow(std::wstring(path));
  if (path.empty()) return Failed(PRO_TK_BAD_INPUTS, "an empty model name");
  fs::path native = platform::NativePath(path);
  ModelFileName name = ParseModelFileName(platform::ToWide(native.filename().string()));
  ProMdlType type =
      fileType == PRO_MDLFILE_UNUSED ? TypeOfExtension(name.extension) : static_cast<ProMdlType>(fileType);
  if (!IsModelType(type))
    return Failed(PRO_TK_BAD_INPUTS, given + ": not the name of a part, assembly or drawing");
  if (name.extension.empty()) name.extension = ExtensionOfType(type);
  if (TypeOfExtension(name.extension) != type)
    return Failed(PRO_TK_INVALID_TYPE, given + ": not the name of " + TypeName(type));

  if (Model* known = Find(type, name.stem)) return Known(known);
  std::vector<fs::path> dirs =
      native.has_parent_path() ? std::vector<fs::path>{NormalDir(state_.currentDir / native.parent_path())}
                               : SearchDirs(state_);
  std::optional<ModelFile> file;
  for (auto dir = dirs.begin(); !file && dir != dirs.end(); ++dir) file = files_.Find(*dir, name);
  if (!file) return Failed(PRO_TK_E_NOT_FOUND, given + ": no model file in " + Joined(dirs));

  std::string where = file->path.string();
  std::optional<std::string> bytes = ReadBytes(file->path);
  if (!bytes) return Failed(PRO_TK_CANT_OPEN, where + ": cannot be read");
  auto model = std::make_unique<Model>();
  model->document = std::move(*bytes);
  std::string error;
  if (ProError status = ParseModelDocument(model->document, model->def, &error))
    return Failed(status, where + ": " + error);
  if (model->def.type != type)
    return Failed(PRO_TK_INVALID_TYPE,
                  where + ": holds " + TypeName(model->def.type) + ", not " + TypeName(type));
  if (model->def.name.empty()) model->def.name = UpperCase(name.stem);
  if (Model* known = Find(type, model->def.name)) return Known(known);

  model->fileName = platform::ToWide(file->path.filename().string());
  model->stem = ParseModelFileName(model->fileName).stem;
  model->origin = file->path;
  model->version = file->version;
  return Opened{PRO_TK_NO_ERROR, {}, nullptr, std::move(model)};
}

Model* Loader::Enter(std::unique_ptr<Model> model) {
  Model* entered = host_.Keep(std::move(model));
  state_.models.Add(entered);
  Index(entered);
  return entered;
}

void Loader::Record(const std::wstring& reference, const std::string& reason) {
  if (!state_.unloadedNames.insert(LowerCase(reference)).second) return;
  state_.unloaded.push_back({reference, reason});
}

// Depth first, each model in session before its references are, as the
// host loads; without recursion, so that no depth of sub-assemblies can
// exhaust the stack.
LoadResult Loader::EnterWithReferences(std::unique_ptr<Model> model) {
  size_t first = state_.models.size();
  Model* top = Enter(std::move(model));
  struct Pending {
    Model* model;
    size_t next = 0;
  };
  std::vector<Pending> pending{{top}};
  while (!pending.empty()) {
    Model* owner = pending.back().model;
    const ModelDef& def = owner->def;
    size_t reference = pending.back().next++;
    if (reference == def.components.size() + def.solids.size()) {
      pending.pop_back();
      continue;
    }
    bool component = reference < def.components.size();
    const std::wstring& name =
        component ? def.components[reference].model : def.solids[reference - def.components.size()];
    Opened opened = Open(name, PRO_MDLFILE_UNUSED);
    Model* found = opened.fresh ? Enter(std::move(opened.fresh)) : opened.known;
    if (!found) Record(name, opened.error);
    if (component) owner->componentModels.push_back(found);
    if (!component && found) owner->solids.push_back(found);
    if (found && found != opened.known) pending.push_back({found});
  }
  std::string cycle = CycleAmong(state_.models.From(first));
  if (cycle.empty()) return {PRO_TK_NO_ERROR, top, {}};
  state_.models.Truncate(first);
  exact_.clear();
  folded_.clear();
  for (Model* kept : state_.models) Index(kept);
  return {PRO_TK_GENERAL_ERROR, nullptr, "an assembly contains itself: " + cycle};
}

LoadResult Loader::Load(std::wstring_view path, ProMdlfileType type) {
  Opened opened = Open(path, type);
  if (!opened.fresh) return {opened.status, opened.known, opened.error};
  return EnterWithReferences(std::move(opened.fresh));
}

Model* Loader::Add(const std::wstring& fileName, const ModelDef& def) {
  auto model = std::make_unique<Model>();
  ModelFileName name = ParseModelFileName(fileName);
  model->def = def;
  if (model->def.name.empty()) model->def.name = UpperCase(name.stem);
  model->fileName = fileName;
  model->stem = name.stem;
  model->version = name.version.value_or(0);
  model->document = ModelDocument(model->def);
  return EnterWithReferences(std::move(model)).model;
}

LoadResult LoadModel(Host& host, std::wstring_view path, ProMdlfileType type) {
  return Loader(host).Load(path, type);
}

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

}  // namespace sim
