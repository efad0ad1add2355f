// The keys of a drawing's file for its sheets and tables.
#pragma once

#include "ModelDef.h"

#include <nlohmann/json_fwd.hpp>

namespace sim {

// Throws a std::exception for a key of the wrong kind, a sheet that does not
// exist or a cell outside its table.
void ReadDrawingData(const nlohmann::json& doc, ModelDef& def);
void WriteDrawingData(const ModelDef& def, nlohmann::json& doc);

}  // namespace sim
