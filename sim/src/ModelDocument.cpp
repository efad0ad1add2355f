#include "ModelDocument.h"

#include "CodePage.h"
#include "DrawingDataJson.h"
#include "JsonError.h"
#include "ModelDataJson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace sim {
namespace {

using nlohmann::json;

constexpr std::pair<const char*, ProMdlType> kTypeNames[] = {
    {"part", PRO_MDL_PART}, {"assembly", PRO_MDL_ASSEMBLY}, {"drawing", PRO_MDL_DRAWING}};

std::wstring Wide(const json& value) { return platform::ToWide(value.get<std::string>()); }

// Feature types are names in our files, but a number is taken as its text.
std::wstring FeatureType(const json& value) {
  return value.is_string() ? Wide(value) : platform::ToWide(value.dump());
}

ModelDef ParseDef(const json& doc) {
  ModelDef def;
  std::string typeName = doc.at("type").get<std::string>();
  auto type = std::find_if(std::begin(kTypeNames), std::end(kTypeNames),
                           [&](const auto& known) { return typeName == known.first; });
  if (type == std::end(kTypeNames))
    throw KeyError("/type", "\"" + typeName + "\" is not part, assembly or drawing");
  def.type = type->second;
  if (doc.contains("name")) def.name = Wide(doc["name"]);
  def.subtype = doc.value("subtype", 0);
  if (doc.contains("commonName")) def.commonName = Wide(doc["commonName"]);
  for (const json& entry : ListAt(doc, "components")) {
    ComponentDef component{entry.at("id").get<int>(), Wide(entry.at("model"))};
    if (entry.contains("transform")) component.transform = entry["transform"].get<Transform>();
    component.suppressed = entry.value("suppressed", false);
    if (entry.contains("relations")) component.relations = ReadLines(entry["relations"]);
    def.components.push_back(std::move(component));
  }
  for (const json& entry : ListAt(doc, "features")) {
    def.features.push_back(
        {entry.at("id").get<int>(), entry.contains("type") ? FeatureType(entry["type"]) : L""});
  }
  for (const json& entry : ListAt(doc, "solids")) def.solids.push_back(Wide(entry));
  ReadModelData(doc, def);
  if (def.type == PRO_MDL_DRAWING) ReadDrawingData(doc, def);
  return def;
}

}  // namespace

ProError ParseModelDocument(std::string_view text, ModelDef& def, std::string* error) {
  try {
    json doc = json::parse(text);
    if (!doc.is_object()) throw KeyError("", "must be a JSON object, but is " + std::string(doc.type_name()));
    def = ParseDef(doc);
  } catch (const std::exception& failure) {
    if (error) *error = JsonErrorText(failure);
    return PRO_TK_INVALID_FILE;
  }
  return PRO_TK_NO_ERROR;
}

std::string ModelDocument(const ModelDef& def) {
  json doc;
  for (const auto& [name, type] : kTypeNames) {
    if (type == def.type) doc["type"] = name;
  }
  doc["name"] = platform::ToNarrow(def.name);
  doc["subtype"] = def.subtype;
  if (!def.commonName.empty()) doc["commonName"] = platform::ToNarrow(def.commonName);
  if (!def.components.empty()) {
    json& components = doc["components"] = json::array();
    for (const ComponentDef& component : def.components) {
      json& entry = components.emplace_back(json{{"id", component.id},
                                                 {"model", platform::ToNarrow(component.model)},
                                                 {"transform", component.transform},
                                                 {"suppressed", component.suppressed}});
      if (!component.relations.empty()) entry["relations"] = WriteLines(component.relations);
    }
  }
  if (!def.features.empty()) {
    json& features = doc["features"] = json::array();
    for (const FeatureDef& feature : def.features) {
      features.push_back({{"id", feature.id}, {"type", platform::ToNarrow(feature.type)}});
    }
  }
  if (!def.solids.empty()) {
    json& solids = doc["solids"] = json::array();
    for (const std::wstring& solid : def.solids) solids.push_back(platform::ToNarrow(solid));
  }
  WriteModelData(def, doc);
  WriteDrawingData(def, doc);
  return doc.dump(2);
}

}  // namespace sim
