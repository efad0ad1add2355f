// One column of the bill of materials list: one line of Tbl.cfg, whose key
// is `id` and whose value holds the other nine fields in order, separated
// by ";". Fields missing at the end keep their cleared values.
#pragma once

#include <string>

// The column kinds of `ColInfo::paramType`.
enum ParamType {
  PARAMTYPE_MDLPARAM = 0,
  PARAMTYPE_PARENTMDL = 1,
  PARAMTYPE_INDEX = 2,
  PARAMTYPE_LEVEL = 3,
  PARAMTYPE_PARTNAME = 4,
  PARAMTYPE_QTY = 5,
  PARAMTYPE_OUTSIZE = 6,
  PARAMTYPE_PARENTNAME = 7,
  PARAMTYPE_UNITMASS = 8,
  PARAMTYPE_TOTALMASS = 9,
};

struct ColInfo {
  int id = 0;                 // the line's key; the column's position from 1
  std::wstring name;          // header text
  int width = 0;              // pixels
  int editType = 0;           // 0 read-only, 1 typed in, 2 chosen from `comboItems`
  std::wstring comboItems;    // choices separated by ","
  std::wstring defaultValue;  // shown when the cell's value is empty
  std::wstring paramName;     // the model parameter of the column
  int paramType = 0;          // a ParamType
  int valueType = 0;          // written back as 0 text, 1 integer, 2 real
  int show = 0;               // nonzero: the column is shown
};

// A column kind with its display name.
struct ParamTypeName {
  int paramType = 0;
  std::wstring name;
};
