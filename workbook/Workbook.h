// A workbook opened from a file: cells read and written by sheet name, row
// and column, saved whole under a new name. The engine is a template patcher:
// what is not written keeps its bytes (sheets, styles, row heights, pictures,
// charts, names). Both .xls (BIFF8 in an OLE2 compound file) and .xlsx
// (OOXML in a zip package) are read and written.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Bytes.h"
#include "Error.h"

namespace workbook {

enum class Format { Xls, Xlsx };

class Workbook {
 public:
  virtual ~Workbook() = default;

  virtual Format format() const = 0;
  // In tab order.
  virtual std::vector<std::wstring> SheetNames() const = 0;

  // Rows and columns count from 1. A sheet is named as in Excel, without
  // regard to case. A text that Excel would take as a number when typed is
  // stored as a number unless the cell is formatted as text; an empty text
  // leaves the cell without a value. An existing cell keeps its format; a new
  // one takes its row's or column's, or in a row below the workbook as it was
  // read, the format of its column's cell in the model row (SetModelRow).
  // Throws Error for a missing sheet, a cell
  // out of the format's range or a cell that cannot be overwritten (part of
  // an array or the anchor of a shared formula); nothing changes then.
  virtual void SetCellText(std::wstring_view sheet, int row, int column, std::wstring_view text) = 0;
  // The value as Excel's automation gives it as text: numbers by "%.15G",
  // booleans "TRUE"/"FALSE", errors as shown ("#N/A"), formulas by their
  // cached result, an empty cell empty. Throws Error as SetCellText.
  virtual std::wstring GetCellText(std::wstring_view sheet, int row, int column) const = 0;
  // Makes `row` the model of the rows below the last one the sheet had when
  // read: a new cell there that its row does not format takes the format of
  // the model row's cell in its column, when that row has one there. So a
  // table longer than the rows its template ruled keeps their borders and
  // font throughout. Throws Error as SetCellText.
  virtual void SetModelRow(std::wstring_view sheet, int row) = 0;

  // The whole file as it would be saved.
  virtual Bytes Save() const = 0;
  // Writes Save() to `file`, replacing it whole or not at all. Throws Error,
  // naming the file and why; an old file is then as it was, and no new one is
  // left behind.
  void SaveAs(const std::filesystem::path& file) const;
};

// Reads a workbook file; the format follows the content, not the name.
// Throws Error for a missing or unreadable file, an encrypted workbook or
// one older than BIFF8.
std::unique_ptr<Workbook> OpenWorkbook(const std::filesystem::path& file);
std::unique_ptr<Workbook> LoadWorkbook(const Bytes& image);
// The format of the file by its first bytes; Xls when they say nothing else
// or the file cannot be read.
Format FormatOfFile(const std::filesystem::path& file);

}  // namespace workbook
