// The "序号" cell of the tools' lists.
#pragma once

#include <string>

// Row `row` (from 0) counted from 1 with at least `digits` digits: "01",
// "02", ... "100" with two.
std::wstring RowNumberText(int row, int digits = 2);
