#include "ModelDataJson.h"

#include "CodePage.h"
#include "JsonError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace sim {
namespace {

using nlohmann::json;

constexpr std::pair<const char*, ProParamvalueType> kParameterTypes[] = {{"string", PRO_PARAM_STRING},
                                                                         {"integer", PRO_PARAM_INTEGER},
                                                                         {"double", PRO_PARAM_DOUBLE},
                                                                         {"boolean", PRO_PARAM_BOOLEAN}};

std::wstring Wide(const json& value) { return platform::ToWide(value.get<std::string>()); }

ProParamvalueType ParameterType(const std::string& name) {
  auto known = std::find_if(std::begin(kParameterTypes), std::end(kParameterTypes),
                            [&](const auto& entry) { return name == entry.first; });
  if (known == std::end(kParameterTypes))
    throw std::invalid_argument("\"" + name + "\" is not string, integer, double or boolean");
  return known->second;
}

ParameterDef ReadParameter(const json& entry) {
  ParameterDef parameter;
  parameter.name = Wide(entry.at("name"));
  parameter.type = ParameterType(entry.value("type", "string"));
  if (entry.contains("value")) {
    const json& value = entry["value"];
    switch (parameter.type) {
      case PRO_PARAM_DOUBLE:
        parameter.number = value.get<double>();
        break;
      case PRO_PARAM_INTEGER:
        parameter.integer = value.get<int>();
        break;
      case PRO_PARAM_BOOLEAN:
        parameter.integer = value.get<bool>() ? 1 : 0;
        break;
      default:
        parameter.text = Wide(value);
    }
  }
  if (entry.contains("unit")) parameter.unit = Wide(entry["unit"]);
  if (entry.contains("description")) parameter.description = Wide(entry["description"]);
  parameter.designated = entry.value("designated", false);
  return parameter;
}

json WriteParameter(const ParameterDef& parameter) {
  json entry{{"name", platform::ToNarrow(parameter.name)}};
  for (const auto& [name, type] : kParameterTypes) {
    if (type == parameter.type) entry["type"] = name;
  }
  switch (parameter.type) {
    case PRO_PARAM_DOUBLE:
      entry["value"] = parameter.number;
      break;
    case PRO_PARAM_INTEGER:
      entry["value"] = parameter.integer;
      break;
    case PRO_PARAM_BOOLEAN:
      entry["value"] = parameter.integer != 0;
      break;
    default:
      entry["value"] = platform::ToNarrow(parameter.text);
  }
  if (!parameter.unit.empty()) entry["unit"] = platform::ToNarrow(parameter.unit);
  if (!parameter.description.empty()) entry["description"] = platform::ToNarrow(parameter.description);
  if (parameter.designated) entry["designated"] = true;
  return entry;
}

MassPropertiesDef ReadMassProperties(const json& entry) {
  MassPropertiesDef properties;
  properties.volume = entry.value("volume", 0.0);
  if (entry.contains("mass")) properties.mass = entry["mass"].get<double>();
  if (entry.contains("cog")) properties.cog = entry["cog"].get<std::array<double, 3>>();
  if (entry.contains("inertia")) properties.inertia = entry["inertia"].get<std::array<double, 6>>();
  return properties;
}

// A held material is its name, or {name, density} for one that is not the
// current material: the current one's density is the part's.
MaterialDef ReadMaterial(const json& entry) {
  if (entry.is_string()) return {Wide(entry), std::nullopt};
  MaterialDef material{Wide(entry.at("name")), std::nullopt};
  if (entry.contains("density")) material.density = entry["density"].get<double>();
  return material;
}

void ReadMaterials(const json& doc, ModelDef& def) {
  for (const json& entry : ListAt(doc, "materials")) def.materials.push_back(ReadMaterial(entry));
  if (doc.contains("material")) def.material = Wide(doc["material"]);
  if (def.material.empty()) return;
  auto current = std::find_if(def.materials.begin(), def.materials.end(),
                              [&](const MaterialDef& held) { return held.name == def.material; });
  if (current == def.materials.end()) current = def.materials.insert(def.materials.end(), {def.material, {}});
  if (!current->density) current->density = def.density;
}

json WriteMaterials(const ModelDef& def) {
  json materials = json::array();
  for (const MaterialDef& held : def.materials) {
    if (held.density && held.name != def.material)
      materials.push_back({{"name", platform::ToNarrow(held.name)}, {"density", *held.density}});
    else
      materials.push_back(platform::ToNarrow(held.name));
  }
  return materials;
}

}  // namespace

std::vector<std::wstring> ReadLines(const json& list) {
  std::vector<std::wstring> lines;
  for (const json& line : list) lines.push_back(Wide(line));
  return lines;
}

json WriteLines(const std::vector<std::wstring>& lines) {
  json list = json::array();
  for (const std::wstring& line : lines) list.push_back(platform::ToNarrow(line));
  return list;
}

void ReadModelData(const json& doc, ModelDef& def) {
  const json& parameters = ListAt(doc, "parameters");
  for (size_t i = 0; i < parameters.size(); ++i) {
    try {
      def.parameters.push_back(ReadParameter(parameters[i]));
    } catch (const std::invalid_argument& unknown) {
      throw KeyError("/parameters/" + std::to_string(i) + "/type", unknown.what());
    }
  }
  def.relations = ReadLines(ListAt(doc, "relations"));
  if (doc.contains("density")) def.density = doc["density"].get<double>();
  ReadMaterials(doc, def);
  if (doc.contains("massProperties")) def.massProperties = ReadMassProperties(doc["massProperties"]);
  for (const json& entry : ListAt(doc, "surfaces")) {
    def.surfaces.push_back(
        {entry.at("min").get<std::array<double, 3>>(), entry.at("max").get<std::array<double, 3>>()});
  }
}

void WriteModelData(const ModelDef& def, json& doc) {
  if (!def.parameters.empty()) {
    json& parameters = doc["parameters"] = json::array();
    for (const ParameterDef& parameter : def.parameters) parameters.push_back(WriteParameter(parameter));
  }
  if (!def.relations.empty()) doc["relations"] = WriteLines(def.relations);
  if (!def.materials.empty()) doc["materials"] = WriteMaterials(def);
  if (!def.material.empty()) doc["material"] = platform::ToNarrow(def.material);
  if (def.density) doc["density"] = *def.density;
  if (def.massProperties) {
    const MassPropertiesDef& properties = *def.massProperties;
    json& entry = doc["massProperties"] = {
        {"volume", properties.volume}, {"cog", properties.cog}, {"inertia", properties.inertia}};
    if (properties.mass) entry["mass"] = *properties.mass;
  }
  if (!def.surfaces.empty()) {
    json& surfaces = doc["surfaces"] = json::array();
    for (const SurfaceDef& surface : def.surfaces)
      surfaces.push_back({{"min", surface.min}, {"max", surface.max}});
  }
}

}  // namespace sim
