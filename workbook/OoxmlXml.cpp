#include "OoxmlXml.h"

#include <cstdio>
#include <cwctype>
#include <initializer_list>

#include "Error.h"
#include "TextCodec.h"

namespace workbook::ooxml {
namespace {

constexpr unsigned kParseFlags = pugi::parse_default | pugi::parse_declaration | pugi::parse_ws_pcdata |
                                 pugi::parse_comments | pugi::parse_pi;

bool IsHex(wchar_t c) {
  return (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'F') || (c >= L'a' && c <= L'f');
}

bool IsEscape(std::wstring_view text, size_t at) {
  if (at + 7 > text.size() || text.substr(at, 2) != L"_x" || text[at + 6] != L'_') return false;
  for (size_t i = at + 2; i < at + 6; ++i) {
    if (!IsHex(text[i])) return false;
  }
  return true;
}

std::wstring Unescape(std::wstring_view text) {
  std::wstring out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsEscape(text, i)) {
      out += static_cast<wchar_t>(std::stoul(std::wstring(text.substr(i + 2, 4)), nullptr, 16));
      i += 6;
    } else {
      out += text[i];
    }
  }
  return out;
}

std::wstring Escape(std::wstring_view text) {
  std::wstring out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    wchar_t c = text[i];
    bool control = c < 0x20 && c != L'\t' && c != L'\n' && c != L'\r';
    if (control || c == 0xFFFE || c == 0xFFFF || (c == L'_' && IsEscape(text, i))) {
      wchar_t escaped[8];
      std::swprintf(escaped, 8, L"_x%04X_", static_cast<unsigned>(c));
      out += escaped;
    } else {
      out += c;
    }
  }
  return out;
}

std::wstring TextOf(pugi::xml_node t) { return Unescape(FromUtf8(t.text().get())); }

struct BytesWriter : pugi::xml_writer {
  explicit BytesWriter(Bytes& out) : bytes(out) {}
  void write(const void* data, size_t size) override {
    const auto* begin = static_cast<const uint8_t*>(data);
    bytes.insert(bytes.end(), begin, begin + size);
  }
  Bytes& bytes;
};

void Append(Bytes& out, std::initializer_list<std::string_view> texts) {
  for (std::string_view text : texts) out.insert(out.end(), text.begin(), text.end());
}

bool IsAncestorOrSelf(pugi::xml_node node, pugi::xml_node of) {
  for (; of; of = of.parent()) {
    if (of == node) return true;
  }
  return false;
}

// As the writer decides it: a declaration before the document element.
bool HasDeclaration(const pugi::xml_document& document) {
  for (pugi::xml_node child : document.children()) {
    if (child.type() == pugi::node_declaration) return true;
    if (child.type() == pugi::node_element) return false;
  }
  return false;
}

// The start tag as pugixml writes it: an empty copy written with both tags,
// less its end tag.
void AppendStartTag(Bytes& out, pugi::xml_node element) {
  pugi::xml_document shell;
  pugi::xml_node copy = shell.append_child(element.name());
  for (pugi::xml_attribute attribute : element.attributes()) copy.append_copy(attribute);
  BytesWriter writer(out);
  copy.print(writer, "", pugi::format_raw | pugi::format_no_empty_element_tags, pugi::encoding_utf8);
  out.resize(out.size() - std::string_view(element.name()).size() - 3);
}

// `node` is `element` or one of its ancestors.
void AppendAround(Bytes& out, pugi::xml_node node, pugi::xml_node element,
                  const std::function<void(Bytes&)>& writeContent) {
  AppendStartTag(out, node);
  if (node == element) {
    writeContent(out);
  } else {
    for (pugi::xml_node child : node.children()) {
      if (IsAncestorOrSelf(child, element)) {
        AppendAround(out, child, element, writeContent);
      } else {
        AppendNode(out, child);
      }
    }
  }
  Append(out, {"</", node.name(), ">"});
}

}  // namespace

void ParsePart(pugi::xml_document& document, const Bytes& xml, std::string_view part) {
  pugi::xml_parse_result result =
      document.load_buffer(xml.data(), xml.size(), kParseFlags, pugi::encoding_auto);
  if (!result || !document.document_element()) {
    throw Error("damaged workbook: " + std::string(part) + " is not well-formed XML (" +
                result.description() + ")");
  }
}

Bytes WritePart(const pugi::xml_document& document) {
  Bytes out;
  BytesWriter writer(out);
  document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
  return out;
}

Bytes WritePartAround(const pugi::xml_document& document, pugi::xml_node element,
                      const std::function<void(Bytes&)>& writeContent) {
  // The declaration that the writer adds to a document without one.
  Bytes out = HasDeclaration(document) ? Bytes() : WritePart(pugi::xml_document());
  for (pugi::xml_node child : document.children()) {
    if (IsAncestorOrSelf(child, element)) {
      AppendAround(out, child, element, writeContent);
    } else {
      AppendNode(out, child);
    }
  }
  return out;
}

void AppendNode(Bytes& out, pugi::xml_node node) {
  BytesWriter writer(out);
  node.print(writer, "", pugi::format_raw, pugi::encoding_utf8);
}

std::string_view LocalName(pugi::xml_node node) {
  std::string_view name = node.name();
  size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

pugi::xml_node Child(pugi::xml_node parent, std::string_view localName) {
  for (pugi::xml_node child : parent.children()) {
    if (child.type() == pugi::node_element && LocalName(child) == localName) return child;
  }
  return {};
}

std::string_view Prefix(pugi::xml_node node) {
  std::string_view name = node.name();
  return name.substr(0, name.size() - LocalName(node).size());
}

pugi::xml_node NewChild(pugi::xml_node parent, std::string_view localName, pugi::xml_node before) {
  std::string name(Prefix(parent));
  name += localName;
  return before ? parent.insert_child_before(name.c_str(), before) : parent.append_child(name.c_str());
}

std::wstring ItemText(pugi::xml_node item) {
  if (pugi::xml_node t = Child(item, "t")) return TextOf(t);
  std::wstring text;
  for (pugi::xml_node run : item.children()) {
    if (LocalName(run) == "r") text += TextOf(Child(run, "t"));
  }
  return text;
}

void AppendStringItem(Bytes& out, std::string_view prefix, std::wstring_view text) {
  std::wstring escaped = Escape(text);
  bool keepBlanks = !escaped.empty() && (std::iswspace(escaped.front()) || std::iswspace(escaped.back()) ||
                                         escaped.find(L"  ") != std::wstring::npos);
  Append(out, {"<", prefix, "si><", prefix, keepBlanks ? "t xml:space=\"preserve\">" : "t>"});
  // Escape() left no control characters but tab and line ends, which XML holds.
  for (char c : ToUtf8(escaped)) {
    switch (c) {
      case '&':
        Append(out, {"&amp;"});
        break;
      case '<':
        Append(out, {"&lt;"});
        break;
      case '>':
        Append(out, {"&gt;"});
        break;
      default:
        out.push_back(static_cast<uint8_t>(c));
    }
  }
  Append(out, {"</", prefix, "t></", prefix, "si>"});
}

}  // namespace workbook::ooxml
