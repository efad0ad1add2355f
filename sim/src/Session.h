// Models entering the session: from files, found along the host's search
// order, or built in code. Call with the host held.
#pragma once

#include "Host.h"

#include <string>
#include <string_view>

namespace sim {

struct LoadResult {
  ProError status = PRO_TK_NO_ERROR;
  Model* model = nullptr;
};

// `path` is a full path (version suffix allowed) or a bare file name, looked
// up in the current directory, the session directory, then the search path.
// PRO_MDLFILE_UNUSED takes the type from the extension. A model of that type
// and name already in session is answered as it is. Components and solids
// are loaded too; those that cannot be found stay unresolved.
LoadResult LoadModel(Host& host, std::wstring_view path, ProMdlfileType type);

Model* AddBuiltModel(Host& host, const std::wstring& fileName, const ModelDef& def);

// The session's model of that type whose file stem or name is `name`: an
// exact match before one that differs in case only.
Model* FindInSession(const HostState& state, ProMdlType type, std::wstring_view name);

}  // namespace sim
