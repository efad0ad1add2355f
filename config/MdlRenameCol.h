// A column of the batch rename list, one section of RenameTbl.cfg.
#pragma once

#include <string>

struct MdlRenameCol {
  std::wstring title;      // "ColName"; also the heading of the Excel column
  int width = 0;           // "ColWidth", pixels
  std::wstring paramName;  // "ParamName"
  int owner = 0;           // "ParamOwner": 0 the row's model, 1 its parent assembly
};
