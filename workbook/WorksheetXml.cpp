#include "WorksheetXml.h"

#include <algorithm>
#include <string>

#include "CellValues.h"
#include "Error.h"
#include "OoxmlXml.h"

namespace workbook::ooxml {
namespace {

// Positions may be left out in SpreadsheetML, counting on from the one
// before; they are written out so that inserted rows and cells cannot shift
// the ones behind them.
int PositionOf(pugi::xml_node node, int previous, bool isRow) {
  pugi::xml_attribute r = node.attribute("r");
  int position = previous + 1;
  if (r) {
    if (isRow) {
      position = r.as_int();
    } else if (auto ref = ParseCellRef(r.value())) {
      position = ref->column;
    } else {
      position = 0;
    }
  }
  if (position < 1) throw Error("damaged worksheet: a row or cell has a bad position");
  return position;
}

// "A1:C5" or "A1".
std::optional<std::pair<CellRef, CellRef>> ParseRange(std::string_view text) {
  size_t colon = text.find(':');
  auto first = ParseCellRef(text.substr(0, colon));
  auto last = colon == std::string_view::npos ? first : ParseCellRef(text.substr(colon + 1));
  if (!first || !last) return std::nullopt;
  return std::pair{*first, *last};
}

std::pair<int, int> ParseSpan(std::string_view span, std::string_view separator) {
  size_t at = span.find(separator);
  if (at == std::string_view::npos) return {0, 0};
  return {std::atoi(std::string(span.substr(0, at)).c_str()),
          std::atoi(std::string(span.substr(at + 1)).c_str())};
}

}  // namespace

WorksheetXml::WorksheetXml(const Bytes& xml, std::string_view part) {
  ParsePart(document_, xml, part);
  sheetData_ = Child(document_.document_element(), "sheetData");
  if (!sheetData_) throw Error("damaged workbook: " + std::string(part) + " has no sheet data");
  int previousRow = 0;
  for (pugi::xml_node row : sheetData_.children()) {
    if (LocalName(row) != "row") continue;
    int rowNumber = PositionOf(row, previousRow, true);
    if (!row.attribute("r")) row.append_attribute("r") = rowNumber;
    previousRow = rowNumber;
    Row& entry = rows_[rowNumber];
    entry.node = row;
    int previousColumn = 0;
    for (pugi::xml_node cell : row.children()) {
      if (LocalName(cell) != "c") continue;
      int column = PositionOf(cell, previousColumn, false);
      if (!cell.attribute("r")) cell.append_attribute("r") = FormatCellRef(rowNumber, column).c_str();
      previousColumn = column;
      entry.cells[column] = cell;
      pugi::xml_node formula = Child(cell, "f");
      if (std::string_view(formula.attribute("t").value()) == "array") {
        if (auto range = ParseRange(formula.attribute("ref").value()))
          arrays_.push_back({range->first, range->second});
      }
    }
  }
  if (!rows_.empty()) lastReadRow_ = rows_.rbegin()->first;
}

pugi::xml_node WorksheetXml::FindCell(int row, int column) const {
  auto rowIt = rows_.find(row);
  if (rowIt == rows_.end()) return {};
  auto cellIt = rowIt->second.cells.find(column);
  return cellIt == rowIt->second.cells.end() ? pugi::xml_node() : cellIt->second;
}

std::optional<int> WorksheetXml::StyleForNewCell(int row, int column) const {
  auto rowIt = rows_.find(row);
  if (rowIt != rows_.end() && rowIt->second.node.attribute("customFormat").as_bool()) {
    return rowIt->second.node.attribute("s").as_int();
  }
  if (modelRow_ && row > lastReadRow_) {
    if (pugi::xml_node model = FindCell(*modelRow_, column)) return model.attribute("s").as_int();
  }
  pugi::xml_node columns = Child(document_.document_element(), "cols");
  for (pugi::xml_node range : columns.children()) {
    if (LocalName(range) != "col") continue;
    if (range.attribute("min").as_int() <= column && column <= range.attribute("max").as_int() &&
        range.attribute("style")) {
      return range.attribute("style").as_int();
    }
  }
  return std::nullopt;
}

bool WorksheetXml::InFormulaGroup(int row, int column) const {
  for (const Range& range : arrays_) {
    if (range.first.row <= row && row <= range.last.row && range.first.column <= column &&
        column <= range.last.column) {
      return true;
    }
  }
  pugi::xml_node formula = Child(FindCell(row, column), "f");
  return std::string_view(formula.attribute("t").value()) == "shared" && formula.attribute("ref");
}

pugi::xml_node WorksheetXml::MakeRow(int row) {
  auto next = rows_.upper_bound(row);
  pugi::xml_node node =
      NewChild(sheetData_, "row", next == rows_.end() ? pugi::xml_node() : next->second.node);
  node.append_attribute("r") = row;
  rows_[row].node = node;
  return node;
}

pugi::xml_node WorksheetXml::MakeCell(int row, int column, std::optional<int> style) {
  if (pugi::xml_node existing = FindCell(row, column)) return existing;
  if (!rows_.count(row)) MakeRow(row);
  Row& entry = rows_[row];
  auto next = entry.cells.upper_bound(column);
  pugi::xml_node cell =
      NewChild(entry.node, "c", next == entry.cells.end() ? pugi::xml_node() : next->second);
  cell.append_attribute("r") = FormatCellRef(row, column).c_str();
  if (style) cell.append_attribute("s") = *style;
  entry.cells[column] = cell;

  if (pugi::xml_attribute spans = entry.node.attribute("spans")) ExtendRange(spans, row, column, true);
  if (pugi::xml_attribute dimension = Child(document_.document_element(), "dimension").attribute("ref")) {
    ExtendRange(dimension, row, column, false);
  }
  return cell;
}

void WorksheetXml::ExtendRange(pugi::xml_attribute range, int row, int column, bool columnsOnly) {
  if (columnsOnly) {
    auto [first, last] = ParseSpan(range.value(), ":");
    if (first < 1) return;
    range = (std::to_string(std::min(first, column)) + ":" + std::to_string(std::max(last, column))).c_str();
    return;
  }
  auto bounds = ParseRange(range.value());
  if (!bounds) return;
  auto [first, last] = *bounds;
  std::string from = FormatCellRef(std::min(first.row, row), std::min(first.column, column));
  std::string to = FormatCellRef(std::max(last.row, row), std::max(last.column, column));
  range = (from == to ? from : from + ":" + to).c_str();
}

Bytes WorksheetXml::Write() const { return WritePart(document_); }

}  // namespace workbook::ooxml
