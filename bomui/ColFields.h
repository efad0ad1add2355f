// The plain half of "零件清单设置": a column's line in the list box and the
// column record made from what its fields hold.
#pragma once

#include <string>

#include "ColInfo.h"

// The name, "--" for a column without one, behind "! " when it is hidden, so
// that hidden columns stand out and a nameless one still takes a line.
std::wstring ColListLine(const ColInfo& col);

// The fields of one column as the controls hold them: texts as typed, the
// combo boxes by selected index (-1 for none).
struct ColFields {
  std::wstring name;
  std::wstring width;
  int editType = -1;
  std::wstring comboItems;
  std::wstring defaultValue;
  std::wstring paramName;
  int paramType = -1;
  int valueType = -1;
  bool show = false;
};

// The record of the column at list position `sel`: its id is the position
// counted from 1, whatever key the line was read from, and a width that is
// no number is 0.
ColInfo ColInfoOfFields(int sel, const ColFields& fields);
