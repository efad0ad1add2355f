// One worksheet part of an .xlsx package: its cells found and made by row and
// column, in the order SpreadsheetML requires. The rest of the part is kept.
#pragma once

#include <pugixml.hpp>

#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "Bytes.h"
#include "CellValues.h"

namespace workbook::ooxml {

class WorksheetXml {
 public:
  // Throws Error naming `part` when it is not a worksheet.
  WorksheetXml(const Bytes& xml, std::string_view part);

  // Rows and columns count from 1. A null node when there is no such cell.
  pugi::xml_node FindCell(int row, int column) const;
  // The cell, made with `style` when it is missing; the sheet's dimension
  // grows to hold it.
  pugi::xml_node MakeCell(int row, int column, std::optional<int> style);
  // What a new cell takes: its row's format, else below the rows read the
  // model row's cell's (SetModelRow), else its column's.
  std::optional<int> StyleForNewCell(int row, int column) const;
  void SetModelRow(int row) { modelRow_ = row; }
  // Whether the cell lies in an array formula's range or is the master of a
  // shared formula: Excel changes neither alone. `cell` is FindCell's answer.
  bool InFormulaGroup(int row, int column, pugi::xml_node cell) const;

  Bytes Write() const;

 private:
  // A row's cells by column, in column order: new cells mostly come last,
  // where a vector grows cheaper than a tree.
  using Cells = std::vector<std::pair<int, pugi::xml_node>>;
  struct Row {
    pugi::xml_node node;
    Cells cells;
  };
  struct Range {
    CellRef first;
    CellRef last;
  };

  struct ColumnStyle {
    int min = 0;
    int max = 0;
    int style = 0;
  };

  using RowMap = std::map<int, Row>;

  // The row, null when it is missing. Remembers the last row found, as
  // cells come row by row.
  const Row* FindRow(int row) const;
  RowMap::iterator MakeRow(int row);
  void ExtendSpans(pugi::xml_attribute spans, int column);
  void ExtendDimension(int row, int column);

  pugi::xml_document document_;
  pugi::xml_node sheetData_;
  RowMap rows_;
  mutable const RowMap::value_type* lastFound_ = nullptr;
  std::vector<Range> arrays_;
  // <cols> with a style, read once: the engine never changes them.
  std::vector<ColumnStyle> columnStyles_;
  // The parsed ref of <dimension>, when it has a readable one.
  pugi::xml_attribute dimension_;
  std::optional<Range> dimensionRange_;
  int lastReadRow_ = 0;
  std::optional<int> modelRow_;
};

}  // namespace workbook::ooxml
