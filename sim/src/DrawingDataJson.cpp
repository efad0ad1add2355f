#include "DrawingDataJson.h"

#include "CodePage.h"
#include "JsonError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace sim {
namespace {

using nlohmann::json;

constexpr std::pair<const char*, ProHorzJust> kJustifications[] = {
    {"left", PROHORZJUST_LEFT}, {"center", PROHORZJUST_CENTER}, {"right", PROHORZJUST_RIGHT}};

std::wstring Wide(const json& value) { return platform::ToWide(value.get<std::string>()); }

void Require(bool condition, const char* what) {
  if (!condition) throw std::invalid_argument(what);
}

ProHorzJust Justification(const std::string& name) {
  auto known = std::find_if(std::begin(kJustifications), std::end(kJustifications),
                            [&](const auto& entry) { return name == entry.first; });
  Require(known != std::end(kJustifications), "unknown justification");
  return known->second;
}

const char* JustificationName(ProHorzJust justification) {
  for (const auto& [name, value] : kJustifications) {
    if (value == justification) return name;
  }
  return kJustifications[0].first;
}

NoteLineDef ReadLine(const json& line) {
  NoteLineDef texts;
  for (const json& entry : line) {
    NoteTextDef text;
    text.text = Wide(entry.at("text"));
    text.height = entry.value("height", text.height);
    text.widthFactor = entry.value("widthFactor", text.widthFactor);
    texts.push_back(std::move(text));
  }
  return texts;
}

TableDef ReadTable(const json& entry, int sheetCount) {
  TableDef table;
  table.id = entry.at("id").get<int>();
  table.sheet = entry.value("sheet", 1);
  Require(table.sheet >= 1 && table.sheet <= sheetCount, "table on a missing sheet");
  if (entry.contains("origin")) table.origin = entry["origin"].get<std::array<double, 3>>();
  table.charHeight = entry.value("charHeight", table.charHeight);
  table.charWidth = entry.value("charWidth", table.charWidth);
  for (const json& column : entry.at("columns")) {
    table.columns.push_back(
        {column.at("width").get<double>(), Justification(column.value("justification", "left"))});
  }
  table.rows = entry.at("rows").get<std::vector<double>>();
  int rowCount = static_cast<int>(table.rows.size());
  int columnCount = static_cast<int>(table.columns.size());
  for (const json& note : entry.value("cells", json::array())) {
    CellDef cell{note.at("row").get<int>(), note.at("column").get<int>(), note.at("noteId").get<int>(), {}};
    Require(cell.row >= 1 && cell.row <= rowCount && cell.column >= 1 && cell.column <= columnCount,
            "cell outside its table");
    for (const json& line : note.value("lines", json::array())) cell.lines.push_back(ReadLine(line));
    table.cells.push_back(std::move(cell));
  }
  return table;
}

json WriteTable(const TableDef& table) {
  json columns = json::array();
  for (const ColumnDef& column : table.columns) {
    columns.push_back({{"width", column.width}, {"justification", JustificationName(column.justification)}});
  }
  json cells = json::array();
  for (const CellDef& cell : table.cells) {
    json lines = json::array();
    for (const NoteLineDef& line : cell.lines) {
      json texts = json::array();
      for (const NoteTextDef& text : line) {
        texts.push_back({{"text", platform::ToNarrow(text.text)},
                         {"height", text.height},
                         {"widthFactor", text.widthFactor}});
      }
      lines.push_back(std::move(texts));
    }
    cells.push_back({{"row", cell.row}, {"column", cell.column}, {"noteId", cell.noteId}, {"lines", lines}});
  }
  return {{"id", table.id},
          {"sheet", table.sheet},
          {"origin", table.origin},
          {"charHeight", table.charHeight},
          {"charWidth", table.charWidth},
          {"columns", columns},
          {"rows", table.rows},
          {"cells", cells}};
}

}  // namespace

void ReadDrawingData(const json& doc, ModelDef& def) {
  for (const json& entry : ListAt(doc, "sheets")) {
    SheetDef sheet;
    if (entry.contains("size")) sheet.size = Wide(entry["size"]);
    if (entry.contains("transform")) sheet.transform = entry["transform"].get<Transform>();
    def.sheets.push_back(std::move(sheet));
  }
  int sheetCount = def.SheetCount();
  def.currentSheet = doc.value("currentSheet", 1);
  Require(def.currentSheet >= 1 && def.currentSheet <= sheetCount, "current sheet missing");
  for (const json& entry : ListAt(doc, "tables")) def.tables.push_back(ReadTable(entry, sheetCount));
}

void WriteDrawingData(const ModelDef& def, json& doc) {
  if (!def.sheets.empty()) {
    json& sheets = doc["sheets"] = json::array();
    for (const SheetDef& sheet : def.sheets)
      sheets.push_back({{"size", platform::ToNarrow(sheet.size)}, {"transform", sheet.transform}});
  }
  if (def.currentSheet != 1) doc["currentSheet"] = def.currentSheet;
  if (!def.tables.empty()) {
    json& tables = doc["tables"] = json::array();
    for (const TableDef& table : def.tables) tables.push_back(WriteTable(table));
  }
}

}  // namespace sim
