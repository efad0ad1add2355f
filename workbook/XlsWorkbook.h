// An .xls workbook: the BIFF8 workbook stream of a compound file, its
// globals, shared strings and worksheets. Only the cell tables of the sheets
// that were written are generated anew; every other record, stream and
// storage is written back as it was read.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "BiffRecords.h"
#include "CellTable.h"
#include "CompoundFile.h"
#include "SharedStrings.h"
#include "Workbook.h"

namespace workbook {

class XlsWorkbook : public Workbook {
 public:
  // Throws Error for a file that is not a BIFF8 workbook, or is encrypted.
  explicit XlsWorkbook(const Bytes& image);

  Format format() const override { return Format::Xls; }
  std::vector<std::wstring> SheetNames() const override;
  void SetCellText(std::wstring_view sheet, int row, int column, std::wstring_view text) override;
  std::wstring GetCellText(std::wstring_view sheet, int row, int column) const override;
  void SetModelRow(std::wstring_view sheet, int row) override;
  Bytes Save() const override;

 private:
  struct ColumnFormat {
    uint16_t first = 0;
    uint16_t last = 0;
    uint16_t format = 0;
  };
  struct Sheet {
    std::wstring name;
    size_t boundSheet = 0;  // index of its BOUNDSHEET among the globals
    bool isWorksheet = false;
    std::vector<biff::Record> records;  // BOF to EOF
    biff::CellTable cells;
    std::vector<ColumnFormat> columnFormats;
    uint16_t defaultRowHeight = 0x00FF;
    uint32_t readRowLimit = 0;  // rows below it were not in the file
    std::optional<uint16_t> modelRow;
    bool changed = false;
  };

  void ReadGlobals(const biff::RecordList& stream, size_t globalsEnd);
  void ReadSheet(const biff::RecordList& stream, size_t boundSheet, size_t position);
  const Sheet& FindWorksheet(std::wstring_view name) const;
  Sheet& FindWorksheet(std::wstring_view name);
  uint16_t FormatForNewCell(const Sheet& sheet, uint16_t row, uint16_t column) const;
  bool IsTextFormat(uint16_t cellFormat) const;
  std::vector<biff::Record> RebuiltSheet(const Sheet& sheet) const;
  void WriteSheet(Bytes& stream, std::vector<biff::Record> records) const;

  CompoundFile file_;
  std::vector<biff::Record> globals_;
  std::vector<Sheet> sheets_;  // in stream order
  biff::SharedStrings strings_;
  bool hadSharedStrings_ = false;
  std::vector<uint16_t> numberFormatOfXf_;
  std::set<uint16_t> textNumberFormats_;
};

}  // namespace workbook
