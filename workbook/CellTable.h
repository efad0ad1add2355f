// The cell table of one BIFF8 worksheet: its ROW records and cell records by
// row and column, changed cell by cell and written out again as row blocks
// with their DBCELL index. Records that are not changed keep their bytes.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "BiffRecords.h"
#include "SharedStrings.h"

namespace workbook::biff {

// One cell record, with the records a FORMULA carries behind it (SHRFMLA,
// ARRAY, TABLE, STRING), or one MULRK/MULBLANK run over several columns.
struct CellEntry {
  uint16_t firstColumn = 0;
  uint16_t lastColumn = 0;
  std::vector<Record> records;
};

struct CellContent {
  enum class Kind { Empty, Number, Text, Boolean, Error };
  Kind kind = Kind::Empty;
  double number = 0;
  std::u16string text;
  bool boolean = false;
  uint8_t error = 0;
};

class CellTable {
 public:
  // The cells of a worksheet substream; nested substreams (embedded charts)
  // are passed over. Throws Error on a malformed cell record.
  static CellTable Read(const std::vector<Record>& sheetRecords);

  // Rows and columns count from 0 here.
  const CellEntry* Find(uint16_t row, uint16_t column) const;
  CellContent Content(uint16_t row, uint16_t column, const SharedStrings& strings) const;
  // The format index of the cell at (row, column) if the table holds one.
  std::optional<uint16_t> CellFormat(uint16_t row, uint16_t column) const;
  // The row's own format, when its ROW record gives one.
  std::optional<uint16_t> RowFormat(uint16_t row) const;
  // Replaces what covers (row, column) with `cell`, a single-cell record of
  // that position; a MULRK/MULBLANK run is split around it.
  void Put(uint16_t row, uint16_t column, Record cell);
  size_t CountCellsOfType(uint16_t type) const;
  // One past the last row with a ROW record or a cell; 0 for none.
  uint32_t RowLimit() const;

  struct Written {
    std::vector<Record> records;  // ROW, cells and DBCELL of each block
    size_t blocks = 0;            // DBCELL records among them
    Record dimensions;
    uint32_t firstRow = 0;  // of the rows with cells; 0 and 0 without any
    uint32_t rowLimit = 0;
  };
  // `defaultRowHeight` is given to rows that had no ROW record.
  Written Write(uint16_t defaultRowHeight) const;

 private:
  struct Row {
    std::optional<Record> record;
    std::map<uint16_t, CellEntry> cells;  // by first column
  };

  std::map<uint16_t, Row> rows_;
};

// The text Excel shows for an error value (#N/A, #DIV/0!, ...).
std::u16string ErrorText(uint8_t code);

}  // namespace workbook::biff
