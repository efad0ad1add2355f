// The keys of a model file beyond its structure: parameters, density, mass
// properties and surfaces.
#pragma once

#include "ModelDef.h"

#include <nlohmann/json_fwd.hpp>

namespace sim {

// Throws a std::exception for a key of the wrong kind or an unknown
// parameter type.
void ReadModelData(const nlohmann::json& doc, ModelDef& def);
void WriteModelData(const ModelDef& def, nlohmann::json& doc);

}  // namespace sim
