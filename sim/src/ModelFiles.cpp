#include "ModelFiles.h"

#include "CodePage.h"
#include "FileLookup.h"
#include "Files.h"
#include "ModelDocument.h"
#include "Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>

namespace sim {
namespace {

using nlohmann::json;

json ParsedDocument(const Model& model) {
  json doc = json::parse(model.document, nullptr, false);
  return doc.is_object() ? doc : json::object();
}

}  // namespace

std::string SavedDocument(const Model& model) {
  json doc = ParsedDocument(model);
  json current = json::parse(ModelDocument(model.def));
  // Keys the definition writes only when set would otherwise survive a change
  // that cleared them.
  for (const char* key : {"commonName", "relations", "materials", "material"}) doc.erase(key);
  for (const auto& [key, value] : current.items()) doc[key] = value;
  return doc.dump(2);
}

void SetDocumentKey(Model& model, const std::string& key, const std::string& jsonValue) {
  json doc = ParsedDocument(model);
  doc[key] = json::parse(jsonValue);
  model.document = doc.dump(2);
  model.modified = true;
}

std::string DocumentKey(const Model& model, const std::string& key) {
  json doc = ParsedDocument(model);
  return doc.contains(key) ? doc[key].dump() : std::string();
}

std::wstring VersionedFileName(const Model& model, int version) {
  return model.stem + L"." + ExtensionOfType(model.def.type) + L"." + std::to_wstring(version);
}

int HighestVersionIn(const std::filesystem::path& dir, const Model& model) {
  std::optional<ModelFile> found = FindModelFile(dir, {model.stem, ExtensionOfType(model.def.type), {}});
  return found ? found->version : 0;
}

bool WriteModelFile(const std::filesystem::path& file, const std::string& text) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out << text << '\n';
  return static_cast<bool>(out.flush());
}

}  // namespace sim
