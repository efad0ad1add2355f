// Texts for a JSON file that cannot be read: where the parser stopped, or
// which key holds what the reader could not take.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <stdexcept>
#include <string>

namespace sim {

// A key of the wrong kind or value found by our own checks; `key` is the
// JSON pointer of the key, such as "/components/0/id".
class KeyError : public std::runtime_error {
 public:
  KeyError(std::string key, const std::string& what) : std::runtime_error(what), key(std::move(key)) {}
  std::string key;
};

// "not JSON: parse error at line 3, column 7: ...", "key /components/0/id:
// type must be number, but is string" and the like, for an exception thrown
// while parsing or reading a document; the what() of any other exception.
std::string JsonErrorText(const std::exception& error);

// The list under a top-level key of `doc`, empty when the key is missing;
// throws KeyError when the key holds something else.
const nlohmann::json& ListAt(const nlohmann::json& doc, const std::string& key);

}  // namespace sim
