// A cell of the Excel template that receives a parameter of the current
// model.
#pragma once

#include <string>

struct ExcelParam {
  std::wstring paramName;
  int row = 0;  // from 1
  int col = 0;  // from 1; -1 for a column name that is not one letter
};
