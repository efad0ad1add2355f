#include "XlsxWorkbook.h"

#include <algorithm>
#include <charconv>

#include "CellValues.h"
#include "OoxmlXml.h"
#include "TextCodec.h"

namespace workbook {

using namespace ooxml;

namespace {

constexpr int kRowLimit = 1048576;
constexpr int kColumnLimit = 16384;
constexpr char kContentTypesPart[] = "[Content_Types].xml";
constexpr char kSharedStringsType[] =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings";
constexpr char kSharedStringsContentType[] =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml";
constexpr char kSharedStringsXml[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
    "<sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\" count=\"0\" "
    "uniqueCount=\"0\"/>";

std::string Quoted(std::wstring_view name) { return "\"" + ToUtf8(name) + "\""; }

const Bytes& PartData(const ZipPackage& package, const std::string& part) {
  const ZipPart* found = package.Find(part);
  if (!found) throw Error("damaged workbook: the package has no part " + part);
  return found->data;
}

std::string FolderOf(const std::string& part) {
  size_t slash = part.rfind('/');
  return slash == std::string::npos ? "" : part.substr(0, slash + 1);
}

// The relationship id of a <sheet>: r:id, whatever prefix names the
// relationships namespace.
std::string SheetRelationshipId(pugi::xml_node sheet) {
  for (pugi::xml_attribute attribute : sheet.attributes()) {
    std::string_view name = attribute.name();
    if (name.size() > 3 && name.substr(name.size() - 3) == ":id") return attribute.value();
  }
  return "";
}

void SetCount(pugi::xml_node root, const char* name, long long value) {
  if (pugi::xml_attribute attribute = root.attribute(name)) attribute = std::max(0LL, value);
}

}  // namespace

XlsxWorkbook::XlsxWorkbook(const Bytes& image) : package_(ZipPackage::Read(image)) {
  pugi::xml_document packageRelations;
  ParsePart(packageRelations, PartData(package_, "_rels/.rels"), "_rels/.rels");
  for (const Relationship& relationship : ReadRelationships(packageRelations, "")) {
    if (IsType(relationship, "officeDocument")) workbookPart_ = relationship.part;
  }
  if (workbookPart_.empty()) throw Error("not a spreadsheet: the package names no workbook");

  pugi::xml_document workbook;
  ParsePart(workbook, PartData(package_, workbookPart_), workbookPart_);
  if (LocalName(workbook.document_element()) != "workbook")
    throw Error("not a spreadsheet: " + workbookPart_);
  std::string relationsPart = RelationshipsPartOf(workbookPart_);
  ParsePart(workbookRelations_, PartData(package_, relationsPart), relationsPart);
  relations_ = ReadRelationships(workbookRelations_, workbookPart_);

  for (pugi::xml_node sheet : Child(workbook.document_element(), "sheets").children()) {
    if (LocalName(sheet) != "sheet") continue;
    std::string id = SheetRelationshipId(sheet);
    auto relationship =
        std::find_if(relations_.begin(), relations_.end(), [&](const Relationship& r) { return r.id == id; });
    if (relationship == relations_.end()) throw Error("damaged workbook: a sheet has no relationship");
    Sheet entry{FromUtf8(sheet.attribute("name").value()), relationship->part, nullptr};
    if (IsType(*relationship, "worksheet")) {
      entry.cells = std::make_unique<WorksheetXml>(PartData(package_, entry.part), entry.part);
    }
    sheets_.push_back(std::move(entry));
  }
  for (const Relationship& relationship : relations_) {
    if (IsType(relationship, "sharedStrings")) sharedStringsPart_ = relationship.part;
    if (IsType(relationship, "styles")) ReadStyles(relationship.part);
  }
  ReadSharedStrings();
}

void XlsxWorkbook::ReadSharedStrings() {
  if (sharedStringsPart_.empty()) return;
  ParsePart(sharedStrings_, PartData(package_, sharedStringsPart_), sharedStringsPart_);
  readStringReferences_ = sharedStrings_.document_element().attribute("count").as_llong();
  for (pugi::xml_node item : sharedStrings_.document_element().children()) {
    if (LocalName(item) != "si") continue;
    strings_.push_back(ItemText(item));
    if (Child(item, "t")) plainStrings_.emplace(strings_.back(), static_cast<uint32_t>(strings_.size() - 1));
  }
  readStrings_ = strings_.size();
}

void XlsxWorkbook::ReadStyles(const std::string& part) {
  pugi::xml_document styles;
  ParsePart(styles, PartData(package_, part), part);
  pugi::xml_node root = styles.document_element();
  for (pugi::xml_node format : Child(root, "numFmts").children()) {
    if (LocalName(format) == "numFmt" && IsTextFormatCode(FromUtf8(format.attribute("formatCode").value()))) {
      textNumberFormats_.insert(format.attribute("numFmtId").as_int());
    }
  }
  for (pugi::xml_node xf : Child(root, "cellXfs").children()) {
    if (LocalName(xf) == "xf") numberFormatOfStyle_.push_back(xf.attribute("numFmtId").as_int());
  }
}

std::vector<std::wstring> XlsxWorkbook::SheetNames() const {
  std::vector<std::wstring> names;
  for (const Sheet& sheet : sheets_) names.push_back(sheet.name);
  return names;
}

const XlsxWorkbook::Sheet& XlsxWorkbook::FindWorksheet(std::wstring_view name) const {
  for (const Sheet& sheet : sheets_) {
    if (!SameSheetName(sheet.name, name)) continue;
    if (!sheet.cells) throw Error("sheet " + Quoted(name) + " is not a worksheet");
    return sheet;
  }
  throw Error("the workbook has no sheet named " + Quoted(name));
}

bool XlsxWorkbook::IsTextFormat(int style) const {
  if (style < 0 || static_cast<size_t>(style) >= numberFormatOfStyle_.size()) return false;
  int numberFormat = numberFormatOfStyle_[style];
  return numberFormat == kBuiltInTextFormat || textNumberFormats_.count(numberFormat);
}

uint32_t XlsxWorkbook::AddSharedString(std::wstring_view text) {
  ++stringReferenceChange_;
  auto found = plainStrings_.find(text);
  if (found != plainStrings_.end()) return found->second;
  if (sharedStringsPart_.empty()) {
    sharedStringsPart_ = FolderOf(workbookPart_) + "sharedStrings.xml";
    ParsePart(sharedStrings_, Bytes(kSharedStringsXml, kSharedStringsXml + sizeof kSharedStringsXml - 1),
              sharedStringsPart_);
  }
  strings_.emplace_back(text);
  sharedStringsChanged_ = true;
  return plainStrings_.emplace(strings_.back(), static_cast<uint32_t>(strings_.size() - 1)).first->second;
}

void XlsxWorkbook::SetCellText(std::wstring_view sheetName, int row, int column, std::wstring_view text) {
  Sheet& sheet = const_cast<Sheet&>(FindWorksheet(sheetName));
  CheckCellRange(row, column, kRowLimit, kColumnLimit);
  WorksheetXml::CellState state = sheet.cells->StateOf(row, column);
  if (state.inFormulaGroup) {
    throw Error("cell (row " + std::to_string(row) + ", column " + std::to_string(column) + ") of sheet " +
                Quoted(sheetName) + " belongs to an array or shared formula and cannot be overwritten");
  }

  CellValue value;
  if (!text.empty()) {
    std::optional<double> number =
        IsTextFormat(state.style.value_or(0)) ? std::nullopt : ParseTypedNumber(text);
    if (number) {
      value = {CellValue::Type::Number, *number};
    } else {
      value = {CellValue::Type::SharedString, 0, AddSharedString(text)};
    }
  }
  if (state.holdsSharedString) --stringReferenceChange_;
  sheet.cells->SetCell(row, column, state, value);
  sheet.changed = true;
}

void XlsxWorkbook::SetModelRow(std::wstring_view sheetName, int row) {
  const Sheet& sheet = FindWorksheet(sheetName);
  CheckCellRange(row, 1, kRowLimit, kColumnLimit);
  sheet.cells->SetModelRow(row);
}

std::wstring XlsxWorkbook::GetCellText(std::wstring_view sheetName, int row, int column) const {
  const Sheet& sheet = FindWorksheet(sheetName);
  CheckCellRange(row, column, kRowLimit, kColumnLimit);
  if (const CellValue* value = sheet.cells->FindNewCell(row, column)) {
    switch (value->type) {
      case CellValue::Type::Number:
        return FormatNumber(value->number);
      case CellValue::Type::SharedString:
        return strings_[value->sharedString];
      case CellValue::Type::Empty:
        return L"";
    }
  }
  pugi::xml_node cell = sheet.cells->FindCell(row, column);
  std::string_view type = cell.attribute("t").value();
  std::string_view value = Child(cell, "v").text().get();
  if (type == "s") {
    unsigned long index = 0;
    auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), index);
    return error == std::errc() && index < strings_.size() ? strings_[index] : L"";
  }
  if (type == "inlineStr") return ItemText(Child(cell, "is"));
  if (type == "b") return value == "1" ? L"TRUE" : L"FALSE";
  if (type == "str" || type == "e" || type == "d") return FromUtf8(value);
  double number = 0;
  auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  if (error == std::errc() && end == value.data() + value.size()) return FormatNumber(number);
  return FromUtf8(value);
}

Bytes XlsxWorkbook::WriteSharedStrings() const {
  pugi::xml_node root = sharedStrings_.document_element();
  SetCount(root, "uniqueCount", static_cast<long long>(strings_.size()));
  SetCount(root, "count", readStringReferences_ + stringReferenceChange_);
  std::string_view prefix = Prefix(root);
  return WritePartAround(sharedStrings_, root, [&](Bytes& out) {
    for (pugi::xml_node child : root.children()) AppendNode(out, child);
    for (size_t i = readStrings_; i < strings_.size(); ++i) AppendStringItem(out, prefix, strings_[i]);
  });
}

Bytes XlsxWorkbook::Save() const {
  ZipPackage package = package_;
  bool anyChanged = false;
  for (const Sheet& sheet : sheets_) {
    if (!sheet.changed) continue;
    anyChanged = true;
    package.Find(sheet.part)->data = sheet.cells->Write();
  }
  if (!anyChanged) return package.Write();

  pugi::xml_document relations;
  relations.reset(workbookRelations_);
  pugi::xml_document contentTypes;
  ParsePart(contentTypes, PartData(package, kContentTypesPart), kContentTypesPart);
  pugi::xml_node types = contentTypes.document_element();
  bool packageChanged = false;

  // Excel rebuilds a missing calculation chain; a stale one it reports as damage.
  for (const Relationship& relationship : relations_) {
    if (!IsType(relationship, "calcChain")) continue;
    package.Remove(relationship.part);
    packageChanged = true;
    relations.document_element().remove_child(
        relations.document_element().find_child_by_attribute("Id", relationship.id.c_str()));
    for (pugi::xml_node type : types.children()) {
      if (LocalName(type) == "Override" &&
          ResolveTarget("", type.attribute("PartName").value()) == relationship.part) {
        types.remove_child(type);
        break;
      }
    }
  }

  if (sharedStringsChanged_ || stringReferenceChange_ != 0) {
    if (ZipPart* part = package.Find(sharedStringsPart_)) {
      part->data = WriteSharedStrings();
    } else {
      package.Add(sharedStringsPart_, WriteSharedStrings());
      packageChanged = true;
      pugi::xml_node relationship = NewChild(relations.document_element(), "Relationship");
      relationship.append_attribute("Id") = NewRelationshipId(relations_).c_str();
      relationship.append_attribute("Type") = kSharedStringsType;
      relationship.append_attribute("Target") =
          sharedStringsPart_.substr(FolderOf(workbookPart_).size()).c_str();
      pugi::xml_node type = NewChild(types, "Override");
      type.append_attribute("PartName") = ("/" + sharedStringsPart_).c_str();
      type.append_attribute("ContentType") = kSharedStringsContentType;
    }
  }
  if (packageChanged) {
    package.Find(RelationshipsPartOf(workbookPart_))->data = WritePart(relations);
    package.Find(kContentTypesPart)->data = WritePart(contentTypes);
  }
  return package.Write();
}

}  // namespace workbook
