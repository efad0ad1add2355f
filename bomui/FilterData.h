// The values of one list column, and the result of the in-list filter: the
// values whose rows are to be taken out of the list.
#pragma once

#include <string>
#include <vector>

struct FilterData {
  int col = -1;       // list column, from 0
  std::wstring name;  // "Col%d" with the column number
  std::vector<std::wstring> values;
};
