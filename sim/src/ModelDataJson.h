// The keys of a model file beyond its structure: parameters, relations,
// materials, density, mass properties and surfaces.
#pragma once

#include "ModelDef.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

namespace sim {

// Throws a std::exception for a key of the wrong kind or an unknown
// parameter type.
void ReadModelData(const nlohmann::json& doc, ModelDef& def);
void WriteModelData(const ModelDef& def, nlohmann::json& doc);

// Relation lines: a list of texts.
std::vector<std::wstring> ReadLines(const nlohmann::json& list);
nlohmann::json WriteLines(const std::vector<std::wstring>& lines);

}  // namespace sim
