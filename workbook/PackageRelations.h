// The package conventions of OOXML: relationship parts, relationship
// targets, content types.
#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace workbook::ooxml {

struct Relationship {
  std::string id;
  std::string type;
  std::string part;  // the target resolved to a part name; empty for an external target
  pugi::xml_node node;
};

// "xl/workbook.xml" -> "xl/_rels/workbook.xml.rels"; "" -> "_rels/.rels".
std::string RelationshipsPartOf(std::string_view part);
// A target relative to the folder of `sourcePart`, or absolute ("/xl/...").
std::string ResolveTarget(std::string_view sourcePart, std::string_view target);
std::vector<Relationship> ReadRelationships(const pugi::xml_document& relationships,
                                            std::string_view sourcePart);
// Types are URIs; the last segment names the kind ("worksheet", "sharedStrings").
bool IsType(const Relationship& relationship, std::string_view kind);
// An id that no relationship of the part uses yet.
std::string NewRelationshipId(const std::vector<Relationship>& relationships);

}  // namespace workbook::ooxml
