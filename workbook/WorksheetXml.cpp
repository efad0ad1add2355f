#include "WorksheetXml.h"

#include <algorithm>
#include <iterator>
#include <limits>
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

// The first of a row's cells at or after `column`; new cells mostly go last.
template <class Cells>
auto CellAtOrAfter(Cells& cells, int column) {
  if (cells.empty() || cells.back().first < column) return cells.end();
  return std::lower_bound(cells.begin(), cells.end(), column,
                          [](const auto& cell, int wanted) { return cell.first < wanted; });
}

}  // namespace

WorksheetXml::WorksheetXml(const Bytes& xml, std::string_view part) {
  ParsePart(document_, xml, part);
  sheetData_ = Child(document_.document_element(), "sheetData");
  if (!sheetData_) throw Error("damaged workbook: " + std::string(part) + " has no sheet data");
  prefix_ = Prefix(sheetData_);
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
      auto at = CellAtOrAfter(entry.cells, column);
      if (at != entry.cells.end() && at->first == column) {
        at->second = cell;
      } else {
        entry.cells.emplace(at, column, cell);
      }
      pugi::xml_node formula = Child(cell, "f");
      if (std::string_view(formula.attribute("t").value()) == "array") {
        if (auto range = ParseRange(formula.attribute("ref").value()))
          arrays_.push_back({range->first, range->second});
      }
    }
  }
  if (!rows_.empty()) lastReadRow_ = rows_.rbegin()->first;

  for (pugi::xml_node range : Child(document_.document_element(), "cols").children()) {
    if (LocalName(range) == "col" && range.attribute("style")) {
      columnStyles_.push_back({range.attribute("min").as_int(), range.attribute("max").as_int(),
                               range.attribute("style").as_int()});
    }
  }
  dimension_ = Child(document_.document_element(), "dimension").attribute("ref");
  if (auto bounds = ParseRange(dimension_.value())) dimensionRange_ = Range{bounds->first, bounds->second};
}

pugi::xml_node WorksheetXml::FindCell(int row, int column) const {
  const Row* entry = FindRow(row);
  if (!entry) return {};
  const Cells& cells = entry->cells;
  auto cellIt = CellAtOrAfter(cells, column);
  return cellIt == cells.end() || cellIt->first != column ? pugi::xml_node() : cellIt->second;
}

const CellValue* WorksheetXml::FindNewCell(int row, int column) const {
  const NewRows::Cell* cell = newRows_.Find(row, column);
  return cell ? &cell->value : nullptr;
}

WorksheetXml::CellState WorksheetXml::StateOf(int row, int column) const {
  CellState state;
  state.inFormulaGroup = std::any_of(arrays_.begin(), arrays_.end(), [&](const Range& range) {
    return range.first.row <= row && row <= range.last.row && range.first.column <= column &&
           column <= range.last.column;
  });
  if (pugi::xml_node cell = FindCell(row, column)) {
    state.exists = true;
    state.style = cell.attribute("s").as_int();
    state.holdsSharedString = std::string_view(cell.attribute("t").value()) == "s";
    pugi::xml_node formula = Child(cell, "f");
    if (std::string_view(formula.attribute("t").value()) == "shared" && formula.attribute("ref"))
      state.inFormulaGroup = true;
  } else if (const NewRows::Cell* written = newRows_.Find(row, column)) {
    state.exists = true;
    state.style = written->style;
    state.holdsSharedString = written->value.type == CellValue::Type::SharedString;
  } else {
    state.style = StyleForNewCell(row, column);
  }
  return state;
}

std::optional<int> WorksheetXml::StyleForNewCell(int row, int column) const {
  const Row* entry = FindRow(row);
  if (entry && entry->node.attribute("customFormat").as_bool()) {
    return entry->node.attribute("s").as_int();
  }
  if (modelRow_ && row > lastReadRow_) {
    if (pugi::xml_node model = FindCell(*modelRow_, column)) return model.attribute("s").as_int();
    if (const NewRows::Cell* model = newRows_.Find(*modelRow_, column)) return model->style.value_or(0);
  }
  for (const ColumnStyle& range : columnStyles_) {
    if (range.min <= column && column <= range.max) return range.style;
  }
  return std::nullopt;
}

const WorksheetXml::Row* WorksheetXml::FindRow(int row) const {
  if (row > lastReadRow_) return nullptr;
  if (!lastFound_ || lastFound_->first != row) {
    auto found = rows_.find(row);
    if (found == rows_.end()) return nullptr;
    lastFound_ = &*found;
  }
  return &lastFound_->second;
}

void WorksheetXml::SetCell(int row, int column, const CellState& state, const CellValue& value) {
  auto rowIt = rows_.find(row);
  if (rowIt == rows_.end()) {
    newRows_.Make(row, column, state.style).value = value;
    if (!state.exists) ExtendDimension(row, column);
    return;
  }
  Row& entry = rowIt->second;
  auto next = CellAtOrAfter(entry.cells, column);
  pugi::xml_node cell;
  if (next != entry.cells.end() && next->first == column) {
    cell = next->second;
    cell.remove_attribute("t");
    for (const char* child : {"f", "v", "is"}) {
      while (pugi::xml_node old = Child(cell, child)) cell.remove_child(old);
    }
  } else {
    cell = NewChild(entry.node, "c", next == entry.cells.end() ? pugi::xml_node() : next->second);
    cell.append_attribute("r") = FormatCellRef(row, column).c_str();
    if (state.style) cell.append_attribute("s") = *state.style;
    entry.cells.emplace(next, column, cell);
    if (pugi::xml_attribute spans = entry.node.attribute("spans")) ExtendSpans(spans, column);
    ExtendDimension(row, column);
  }
  if (value.type == CellValue::Type::Empty) return;
  pugi::xml_node text = NewChild(cell, "v", cell.first_child());
  if (value.type == CellValue::Type::Number) {
    text.text().set(NumberText(value.number).c_str());
  } else {
    cell.append_attribute("t") = "s";
    text.text().set(value.sharedString);
  }
}

void WorksheetXml::ExtendSpans(pugi::xml_attribute spans, int column) {
  auto [first, last] = ParseSpan(spans.value(), ":");
  if (first < 1 || (first <= column && column <= last)) return;
  spans = (std::to_string(std::min(first, column)) + ":" + std::to_string(std::max(last, column))).c_str();
}

void WorksheetXml::ExtendDimension(int row, int column) {
  if (!dimensionRange_) return;
  CellRef& first = dimensionRange_->first;
  CellRef& last = dimensionRange_->last;
  if (first.row <= row && row <= last.row && first.column <= column && column <= last.column) return;
  first = {std::min(first.row, row), std::min(first.column, column)};
  last = {std::max(last.row, row), std::max(last.column, column)};
  std::string from = FormatCellRef(first.row, first.column);
  std::string to = FormatCellRef(last.row, last.column);
  dimension_ = (from == to ? from : from + ":" + to).c_str();
}

Bytes WorksheetXml::Write() const {
  return WritePartAround(document_, sheetData_, [this](Bytes& out) {
    // A new row goes before the first row the part had below it.
    for (pugi::xml_node child : sheetData_.children()) {
      if (LocalName(child) == "row") {
        auto row = rows_.find(child.attribute("r").as_int());
        if (row != rows_.end() && row->second.node == child)
          newRows_.Write(out, prefix_, row == rows_.begin() ? 0 : std::prev(row)->first, row->first);
      }
      AppendNode(out, child);
    }
    newRows_.Write(out, prefix_, rows_.empty() ? 0 : rows_.rbegin()->first, std::numeric_limits<int>::max());
  });
}

}  // namespace workbook::ooxml
