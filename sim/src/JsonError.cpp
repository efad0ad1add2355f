#include "JsonError.h"

#include <nlohmann/json.hpp>

namespace sim {
namespace {

// The library's texts start with "[json.exception.type_error.302] ", then,
// as the library is built with diagnostics, "(/path/of/key) ".
std::string WithoutId(const std::string& what) {
  size_t end = what.rfind("] ", what.find(' '));
  return end == std::string::npos || what.front() != '[' ? what : what.substr(end + 2);
}

std::string KeyText(const std::string& key, const std::string& what) {
  return "key " + (key.empty() ? std::string("/") : key) + ": " + what;
}

}  // namespace

std::string JsonErrorText(const std::exception& error) {
  if (const auto* key = dynamic_cast<const KeyError*>(&error)) return KeyText(key->key, key->what());
  if (dynamic_cast<const nlohmann::json::parse_error*>(&error)) return "not JSON: " + WithoutId(error.what());
  if (!dynamic_cast<const nlohmann::json::exception*>(&error)) return error.what();
  std::string text = WithoutId(error.what());
  if (text.starts_with('(')) {
    size_t close = text.find(") ");
    if (close != std::string::npos) return KeyText(text.substr(1, close - 1), text.substr(close + 2));
  }
  return text;
}

const nlohmann::json& ListAt(const nlohmann::json& doc, const std::string& key) {
  static const nlohmann::json kEmpty = nlohmann::json::array();
  auto found = doc.find(key);
  if (found == doc.end()) return kEmpty;
  if (!found->is_array())
    throw KeyError("/" + key, "must be a list, but is " + std::string(found->type_name()));
  return *found;
}

}  // namespace sim
