// Models entering the session: from files, found along the host's search
// order, or built in code. Call with the host held.
#pragma once

#include "FileLookup.h"
#include "Host.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace sim {

struct LoadResult {
  ProError status = PRO_TK_NO_ERROR;
  Model* model = nullptr;
  std::string error;  // on failure: the file or name, then what is wrong
};

// One load, or several in a row such as those of a session file: each
// directory is read once, and the models in session are found by name
// without a scan. Nothing may write into the directories or change the
// session's models but the loader while it lives.
class Loader {
 public:
  explicit Loader(Host& host);

  // `path` is a full path (version suffix allowed) or a bare file name,
  // looked up in the current directory, the session directory, then the
  // search path. PRO_MDLFILE_UNUSED takes the type from the extension. A
  // model of that type and name already in session is answered as it is.
  // Components and solids are loaded too; those that cannot be found or read
  // stay unresolved and are recorded in the state's `unloaded`. A model that
  // would contain itself through its components is refused with all that the
  // load brought into session.
  LoadResult Load(std::wstring_view path, ProMdlfileType type);
  // Puts a model built in code into session, its references resolved as
  // above; null when it would contain itself.
  Model* Add(const std::wstring& fileName, const ModelDef& def);

 private:
  // A model found in session (`known`) or read from its file (`fresh`), not
  // yet in session; neither with `error` set.
  struct Opened {
    ProError status = PRO_TK_NO_ERROR;
    std::string error;
    Model* known = nullptr;
    std::unique_ptr<Model> fresh;
  };
  static Opened Failed(ProError status, std::string error);
  static Opened Known(Model* model);
  Opened Open(std::wstring_view path, ProMdlfileType type);
  Model* Enter(std::unique_ptr<Model> model);
  LoadResult EnterWithReferences(std::unique_ptr<Model> model);
  void Record(const std::wstring& reference, const std::string& reason);
  Model* Find(ProMdlType type, std::wstring_view name) const;
  void Index(Model* model);

  Host& host_;
  HostState& state_;
  ModelFileIndex files_;
  // The first model in load order whose stem or name is the key, as given
  // and in lower case.
  std::map<std::pair<ProMdlType, std::wstring>, Model*> exact_;
  std::map<std::pair<ProMdlType, std::wstring>, Model*> folded_;
};

// One load with a loader of its own.
LoadResult LoadModel(Host& host, std::wstring_view path, ProMdlfileType type);

// The session's model of that type whose file stem or name is `name`: an
// exact match before one that differs in case only.
Model* FindInSession(const HostState& state, ProMdlType type, std::wstring_view name);

}  // namespace sim
