// The job "rows": the bill of materials of the current model in a terminal,
// one tab-separated line per row: level, outline number, name, kind and
// quantity.
#pragma once

#include <ostream>

#include "Options.h"

// 0, or 1 after a collection or sort that failed; the reason goes to `err`.
int PrintRows(const RowsOptions& options, std::ostream& out, std::ostream& err);
