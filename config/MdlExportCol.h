// A column of the batch export list, one section of MdlExportCol.cfg.
#pragma once

#include <string>

struct MdlExportCol {
  std::wstring title;      // "ColName"
  int width = 0;           // "ColWidth", pixels
  std::wstring paramName;  // "ParamName"; "@mdlname" in any case is the model name
  int show = 0;            // "Show"
};
