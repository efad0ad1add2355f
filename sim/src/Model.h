// A model in the simulated session. Model objects live until the process
// ends, so that a handle the session no longer knows can be recognised
// without touching freed memory.
#pragma once

#include "ModelDef.h"

#include <filesystem>
#include <string>
#include <vector>

namespace sim {

class Model {
 public:
  ModelDef def;                  // name always filled in
  std::wstring fileName;         // as found on disk or as given, version suffix included
  std::wstring stem;             // of the file name: the host's name for the model
  std::filesystem::path origin;  // the file loaded; empty for a model built in code
  int version = 0;
  std::string document;                 // the model file's JSON text, for readers of further keys
  std::vector<Model*> componentModels;  // parallel to def.components; null: not found
  std::vector<Model*> solids;           // drawings: the solids that could be found
  bool modified = false;                // changed in session since loaded or saved
  int lastItemId = 0;                   // drawings: the highest item id handed out in session

  // Ids of the components and the other features together, ascending: the
  // host's feature order.
  std::vector<int> FeatureIds() const;
  // Null for an id that is not a component or whose model was not found.
  Model* ComponentModel(int featureId) const;
  bool IsSolid() const { return def.type == PRO_MDL_PART || def.type == PRO_MDL_ASSEMBLY; }
};

}  // namespace sim
