// Drawing operations of the model access layer: a table made from a header
// row at a point, rows of multi-line text appended, the finished table lifted
// to stand on that point; and the models a drawing shows. No state: a table
// is the host's model item, kept by the caller.
//
// Text entry and cell access count rows and columns from 1, sizes and
// positions from 0, as the host does. Results are host statuses, 0 success.
#pragma once

#include <string>
#include <vector>

#include "ProDwgtable.h"

class CTkDrwTable {
 public:
  // A one-row table at `origin`, growing downward, its header cells filled;
  // `headers` holds one text per width.
  int CreateDrwTable(ProMdl drawing, const ProPoint3d origin, const std::vector<unsigned>& widths,
                     const std::vector<std::wstring>& headers, ProDwgtable& table, int rowHeight,
                     int sizeType, int justification) const;
  // A row behind row `position` - 1, or at the end for a position below 1;
  // blank cells stay without text. `heightUnit` 1 gives the height in the
  // other unit (divided by 6.14). A `fitFactor` above 0 narrows text that is
  // too wide for its column. 0 once the row exists, whatever its cells got.
  int AddTableRow(ProDwgtable& table, double rowHeight, const std::vector<std::wstring>& cells,
                  int heightUnit, double fitFactor, int position) const;
  // Moves the table up by its height, so that its bottom stands where its
  // origin was, and repaints the window; 0, or the status of a failed query.
  int FinishDrwTable(ProDwgtable& table) const;

  int GetTableCellTextHeight(ProDwgtable& table, int row, int column, double& height) const;
  int GetTableCellTextWidth(ProDwgtable& table, int row, int column, double& width) const;
  int SetTableCellTextWidth(ProDwgtable& table, int row, int column, double width) const;

  int GetColumnSize(ProDwgtable& table, int column, double& size) const;
  // The column's size in drawing units; stays 0 on failure.
  int GetColumnWidthOnSheet(ProDwgtable& table, int column, double& width) const;
  int GetTableInfo(ProDwgtable& table, ProDwgtableInfo& info) const;
  int GetTableSheet(ProDwgtable& table, int& sheet) const;
  // The corners of the table's outline in drawing coordinates.
  int GetTableOutline(ProMdl drawing, int sheet, ProDwgtable& table, ProPoint3d first,
                      ProPoint3d second) const;
  int SheetPointToDrawing(ProMdl drawing, int sheet, const ProPoint3d point, ProPoint3d result) const;

  // Appends the models the drawing shows, in the drawing's order; the
  // status of the failing host call, else 0.
  int GetDrawingSolids(ProMdl drawing, std::vector<ProMdl>& solids) const;

  // Cuts at each separator; every piece trimmed of blanks, empty ones kept,
  // nothing behind a separator at the very end.
  void SplitLines(const std::wstring& text, std::vector<std::wstring>& lines, wchar_t separator) const;

 private:
  int TextEnter(ProDwgtable& table, int column, int row, const std::vector<std::wstring>& lines) const;
  void FitCellText(ProDwgtable& table, int row, int column, std::size_t longestLine, double fitFactor) const;
};
