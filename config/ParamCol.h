// An extra column of the material list, one section of MatCol.cfg.
#pragma once

#include <string>

struct ParamCol {
  std::wstring title;      // "ColName"
  int width = 0;           // "ColWidth", pixels
  std::wstring paramName;  // "ParamName"
  bool show = false;       // "Show"
};
