// Checks of a written .xls that go below what a reader tolerates: the
// structure of the BIFF8 workbook stream, and the compound file's other
// streams. Written apart from the engine, on libgsf directly.
#pragma once

#include <filesystem>
#include <string>

// Every violation found, one a line; empty when none. Checked: record
// order (globals, then BOF..EOF substreams; in a worksheet INDEX first,
// DIMENSIONS before the cell table, each row block's ROW records before its
// cells, a DBCELL after each block), BOUNDSHEET offsets pointing at BOF,
// INDEX entries pointing at the DBCELL records, DBCELL offsets pointing at
// the first ROW and at each row's first cell, DIMENSIONS holding every cell,
// SST counts (unique strings, LABELSST cells) and EXTSST offsets.
std::string BiffStructureProblems(const std::filesystem::path& xls);

// How the first sheet of an .xls prints: its SETUP and WSBOOL records and the
// built-in name Print_Titles of that sheet.
struct BiffPrintSetup {
  bool landscape = false;  // SETUP valid (fNoPls clear) and not fPortrait
  bool fitToPage = false;  // WSBOOL's fFitToPage
  int fitWidth = -1;       // SETUP's pages wide and tall (0: as many as it takes)
  int fitHeight = -1;
  int titleFirstRow = -1;  // the rows Print_Titles repeats, from 1; -1 without
  int titleLastRow = -1;
};
BiffPrintSetup FirstSheetPrintSetup(const std::filesystem::path& xls);
// The width of a column (from 1) of the first sheet, in 1/256 of the width of
// the default font's "0", by its COLINFO record; -1 without one.
int FirstSheetColumnWidth(const std::filesystem::path& xls, int column);
