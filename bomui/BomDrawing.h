// The output of the BOM list to a new table of the current drawing: a header
// row and the checked rows, the whole table standing on a point that the
// user picks.
#pragma once

#include <string>
#include <vector>

#include "ColInfo.h"
#include "DrwTblCells.h"

// A list column's width in pixels / 10 in the table's character unit, at
// least 1.
std::vector<unsigned> BomDrawingColumnWidths(const std::vector<int>& pixelWidths);

// Entry 0 the names of the shown columns of `cols`, the others the cells of
// the rows; a row carries at most kDrwTblMaxCells cells. The header counts
// the names it got, so a column table that no longer matches the list (or
// one wider than a row) shows as a count that differs from the list's.
std::vector<DrwTblCells> BomDrawingTable(const std::vector<ColInfo>& cols,
                                         const std::vector<std::vector<std::wstring>>& rows);

// Asks for the point, draws the table on the current model and lifts it onto
// the point. 1 when drawn; 0 without a current model, on an aborted pick or a
// column count that differs from `widths` (told under "提示"); the host's
// status when the table cannot be created.
int WriteBomDrawing(const std::vector<unsigned>& widths, const std::vector<DrwTblCells>& table);
