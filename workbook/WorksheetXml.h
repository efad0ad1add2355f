// One worksheet part of an .xlsx package: its cells found and made by row and
// column, in the order SpreadsheetML requires. The rest of the part is kept.
#pragma once

#include <pugixml.hpp>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Bytes.h"
#include "CellValues.h"
#include "NewRows.h"

namespace workbook::ooxml {

class WorksheetXml {
 public:
  // Throws Error naming `part` when it is not a worksheet.
  WorksheetXml(const Bytes& xml, std::string_view part);

  // What writing a cell depends on.
  struct CellState {
    // The cell's style; a missing cell's is the one it will be made with:
    // its row's format, else below the rows read the model row's cell's
    // (SetModelRow), else its column's. None reads as 0.
    std::optional<int> style;
    bool exists = false;
    // It holds a shared string, whose reference goes when it is written.
    bool holdsSharedString = false;
    // It lies in an array formula's range or is the master of a shared
    // formula: Excel changes neither alone.
    bool inFormulaGroup = false;
  };
  // Rows and columns count from 1.
  CellState StateOf(int row, int column) const;
  // Replaces the cell's value and formula. A missing cell is made with
  // `state.style` and the sheet's dimension grows to hold it. `state` is
  // StateOf's answer for the cell, which is not in a formula group.
  void SetCell(int row, int column, const CellState& state, const CellValue& value);
  void SetModelRow(int row) { modelRow_ = row; }

  // A cell of the rows the part had; null when there is no such cell.
  pugi::xml_node FindCell(int row, int column) const;
  // A cell written into a row the part did not have; null when there is none.
  const CellValue* FindNewCell(int row, int column) const;

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
  std::optional<int> StyleForNewCell(int row, int column) const;
  void ExtendSpans(pugi::xml_attribute spans, int column);
  void ExtendDimension(int row, int column);

  pugi::xml_document document_;
  pugi::xml_node sheetData_;
  // The rows the part had; the ones written besides them are newRows_.
  RowMap rows_;
  NewRows newRows_;
  // The prefix of the elements of sheetData_ ("" or "x:").
  std::string prefix_;
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
