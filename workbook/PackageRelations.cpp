#include "PackageRelations.h"

#include <algorithm>

#include "OoxmlXml.h"

namespace workbook::ooxml {

std::string RelationshipsPartOf(std::string_view part) {
  size_t slash = part.rfind('/');
  std::string folder = slash == std::string_view::npos ? "" : std::string(part.substr(0, slash + 1));
  std::string name(slash == std::string_view::npos ? part : part.substr(slash + 1));
  return folder + "_rels/" + name + ".rels";
}

std::string ResolveTarget(std::string_view sourcePart, std::string_view target) {
  std::string path;
  if (!target.empty() && target.front() == '/') {
    path = target.substr(1);
  } else {
    size_t slash = sourcePart.rfind('/');
    path = std::string(slash == std::string_view::npos ? "" : sourcePart.substr(0, slash + 1)) +
           std::string(target);
  }
  std::vector<std::string> segments;
  size_t start = 0;
  while (start <= path.size()) {
    size_t end = std::min(path.find('/', start), path.size());
    std::string segment = path.substr(start, end - start);
    if (segment == "..") {
      if (!segments.empty()) segments.pop_back();
    } else if (!segment.empty() && segment != ".") {
      segments.push_back(segment);
    }
    start = end + 1;
  }
  std::string resolved;
  for (const std::string& segment : segments) resolved += (resolved.empty() ? "" : "/") + segment;
  return resolved;
}

std::vector<Relationship> ReadRelationships(const pugi::xml_document& relationships,
                                            std::string_view sourcePart) {
  std::vector<Relationship> found;
  for (pugi::xml_node node : relationships.document_element().children()) {
    if (LocalName(node) != "Relationship") continue;
    Relationship relationship{node.attribute("Id").value(), node.attribute("Type").value(), "", node};
    if (std::string_view(node.attribute("TargetMode").value()) != "External") {
      relationship.part = ResolveTarget(sourcePart, node.attribute("Target").value());
    }
    found.push_back(std::move(relationship));
  }
  return found;
}

bool IsType(const Relationship& relationship, std::string_view kind) {
  std::string_view type = relationship.type;
  size_t slash = type.rfind('/');
  return type.substr(slash == std::string_view::npos ? 0 : slash + 1) == kind;
}

std::string NewRelationshipId(const std::vector<Relationship>& relationships) {
  for (int n = 1;; ++n) {
    std::string id = "rId" + std::to_string(n);
    if (std::none_of(relationships.begin(), relationships.end(),
                     [&](const Relationship& r) { return r.id == id; })) {
      return id;
    }
  }
}

}  // namespace workbook::ooxml
