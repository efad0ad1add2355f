#include "SessionFile.h"

#include "CodePage.h"
#include "FileLookup.h"

#include <nlohmann/json.hpp>

namespace sim {
namespace {

using nlohmann::json;

std::wstring Wide(const json& value) { return platform::ToWide(value.get<std::string>()); }

// Options are texts, but a number or a flag is taken as it is written.
std::wstring OptionValue(const json& value) {
  return value.is_string() ? Wide(value) : platform::ToWide(value.dump());
}

SessionFile Parse(const json& doc) {
  SessionFile session;
  for (const json& name : doc.value("open", json::array())) session.open.push_back(Wide(name));
  if (doc.contains("current")) session.current = Wide(doc["current"]);
  json options = doc.value("configOptions", json::object());
  for (const auto& [name, value] : options.items()) {
    session.configOptions[platform::ToWide(name)] = OptionValue(value);
  }
  for (const json& dir : doc.value("searchPath", json::array())) session.searchPath.push_back(Wide(dir));
  return session;
}

}  // namespace

ProError ReadSessionFile(const std::filesystem::path& file, SessionFile& session) {
  std::optional<std::string> bytes = ReadBytes(file);
  if (!bytes) return PRO_TK_E_NOT_FOUND;
  json doc = json::parse(*bytes, nullptr, false);
  if (doc.is_discarded() || !doc.is_object()) return PRO_TK_INVALID_FILE;
  try {
    session = Parse(doc);
  } catch (const json::exception&) {
    return PRO_TK_INVALID_FILE;
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace sim
