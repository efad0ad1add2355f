// The "序号" cell of the tools' lists.
#pragma once

#include <string>

// Row `row` (from 0) as "%02d" from 1: "01", "02", ... "100".
std::wstring RowNumberText(int row);
