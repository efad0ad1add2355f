#include "SessionFile.h"

#include "CodePage.h"
#include "FileLookup.h"
#include "Files.h"
#include "JsonError.h"
#include "Text.h"

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
  for (const json& name : ListAt(doc, "open")) session.open.push_back(Wide(name));
  if (doc.contains("current")) session.current = Wide(doc["current"]);
  json options = doc.value("configOptions", json::object());
  if (!options.is_object())
    throw KeyError("/configOptions", "must be an object, but is " + std::string(options.type_name()));
  for (const auto& [name, value] : options.items()) {
    session.configOptions[platform::ToWide(name)] = OptionValue(value);
  }
  for (const json& dir : ListAt(doc, "searchPath")) session.searchPath.push_back(Wide(dir));
  return session;
}

}  // namespace

ProError ReadSessionFile(const std::filesystem::path& file, SessionFile& session, std::string& error) {
  std::optional<std::string> bytes = ReadBytes(file);
  if (!bytes) {
    std::error_code ec;
    error = file.string() + (std::filesystem::exists(file, ec) ? ": cannot be read" : ": missing");
    return PRO_TK_E_NOT_FOUND;
  }
  try {
    json doc = json::parse(*bytes);
    if (!doc.is_object()) throw KeyError("", "must be a JSON object, but is " + std::string(doc.type_name()));
    session = Parse(doc);
  } catch (const std::exception& failure) {
    error = file.string() + ": " + JsonErrorText(failure);
    return PRO_TK_INVALID_FILE;
  }
  return PRO_TK_NO_ERROR;
}

std::wstring SessionOptionValue(const std::wstring& name, const std::wstring& value,
                                const std::filesystem::path& sessionDir) {
  std::wstring lower = LowerCase(name);
  bool isPath = lower.ends_with(L"_dir") || lower.ends_with(L"_file");
  std::filesystem::path path = platform::NativePath(value);
  if (!isPath || value.empty() || !path.is_relative()) return value;
  return WideText(NormalDir(sessionDir / path));
}

}  // namespace sim
