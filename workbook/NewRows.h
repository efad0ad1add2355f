// The rows of a worksheet that its part did not have: their cells kept as
// values, by row and then column, and written out as SpreadsheetML when the
// part is. A bill fills thousands of them, and a tree node per cell, its
// reference and its value cost several times what the text does.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Bytes.h"

namespace workbook::ooxml {

// What the engine writes into a cell: nothing (the cell keeps only its
// format), a number, or a shared string by its index.
struct CellValue {
  enum class Type : uint8_t { Empty, Number, SharedString };
  Type type = Type::Empty;
  double number = 0;
  uint32_t sharedString = 0;
};

// A number as a cell's <v> holds it: the shortest text that reads back the
// same double.
std::string NumberText(double value);

class NewRows {
 public:
  struct Cell {
    int column = 0;
    std::optional<int> style;
    CellValue value;
  };

  // Rows and columns count from 1. Null when there is no such cell.
  const Cell* Find(int row, int column) const;
  // The cell, made with `style` when it is missing.
  Cell& Make(int row, int column, std::optional<int> style);

  // Appends the rows above `after` and below `before` as <row> elements,
  // their element names prefixed with `prefix` ("" or "x:").
  void Write(Bytes& out, const std::string& prefix, int after, int before) const;

 private:
  // A row's cells in column order: they mostly come last.
  using Cells = std::vector<Cell>;
  using RowMap = std::map<int, Cells>;

  RowMap rows_;
  // The row last made, as cells come row by row.
  RowMap::value_type* last_ = nullptr;
};

}  // namespace workbook::ooxml
