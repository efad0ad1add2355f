// XML of OOXML parts through pugixml: parsing and writing a part, elements by
// local name whatever prefix the writer chose, and the _xHHHH_ escapes that
// carry characters XML cannot hold.
#pragma once

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <string_view>

#include "Bytes.h"

namespace workbook::ooxml {

// Keeps the declaration, comments and whitespace-only text (" " in a cell).
// Throws Error naming `part` when it is not well-formed.
void ParsePart(pugi::xml_document& document, const Bytes& xml, std::string_view part);
Bytes WritePart(const pugi::xml_document& document);
// WritePart's bytes, but with what lies between the start and end tags of
// `element` (the document element or below it) written by `writeContent`,
// which may hand the element's own children to AppendNode.
Bytes WritePartAround(const pugi::xml_document& document, pugi::xml_node element,
                      const std::function<void(Bytes&)>& writeContent);
// Appends the node with its subtree as WritePart writes it.
void AppendNode(Bytes& out, pugi::xml_node node);

std::string_view LocalName(pugi::xml_node node);
// What comes before the local name: "" or "x:".
std::string_view Prefix(pugi::xml_node node);
pugi::xml_node Child(pugi::xml_node parent, std::string_view localName);
// A new element with the prefix its parent uses, before `before` or at the end.
pugi::xml_node NewChild(pugi::xml_node parent, std::string_view localName, pugi::xml_node before = {});

// The text of a string item (<si>, <is>): its <t>, or the <t> of its runs;
// phonetic runs are left out.
std::wstring ItemText(pugi::xml_node item);
// Appends a string item <si><t>text</t></si>, its element names prefixed
// with `prefix`, escaping what XML cannot hold and keeping blanks.
void AppendStringItem(Bytes& out, std::string_view prefix, std::wstring_view text);

}  // namespace workbook::ooxml
