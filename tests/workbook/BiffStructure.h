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
