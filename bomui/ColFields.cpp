#include "ColFields.h"

#include "CodePage.h"

std::wstring ColListLine(const ColInfo& col) {
  std::wstring line = col.name.empty() ? L"--" : col.name;
  return col.show ? line : L"! " + line;
}

ColInfo ColInfoOfFields(int sel, const ColFields& fields) {
  ColInfo col;
  col.id = sel + 1;
  col.name = fields.name;
  col.width = platform::WideToInt(fields.width);
  col.editType = fields.editType;
  col.comboItems = fields.comboItems;
  col.defaultValue = fields.defaultValue;
  col.paramName = fields.paramName;
  col.paramType = fields.paramType;
  col.valueType = fields.valueType;
  col.show = fields.show ? 1 : 0;
  return col;
}
