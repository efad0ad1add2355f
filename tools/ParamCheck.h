// The rules of "参数批量检查" that need no window: which columns of the
// model list are editable, where the unit system stands, what a model's
// status and cells say, and how one row is written back into its model.
// `refs` are the checked reference attributes in list order; attribute i
// shows in model list column i + kFirstAttrCol.
#pragma once

#include <string>
#include <vector>

#include "ParamData.h"
#include "ProObjects.h"

class CParamSource;
class CTkModel;

// 序号, 模型名称 and 状态 come first.
constexpr int kFirstAttrCol = 3;

// As many entries as attributes of kind "参数", filled by attribute
// position: the entry of attribute i is its column, entries of other kinds
// stay 0, and parameters standing behind the count fall off. So a
// "系统单位" row in front of a parameter makes column 0 editable instead
// of the last parameter's column.
std::vector<int> EditColumnsByPosition(const std::vector<ParamData>& refs);
// The column of the last attribute of kind "系统单位", -1 without one.
int UnitSystemColumn(const std::vector<ParamData>& refs);

// "参数存在", or each missing parameter's name followed by "不存在; ".
// Only existence counts; values, types and "系统单位" rows never fail.
std::wstring CheckMdlStatus(const CParamSource& source, ProMdl mdl, const std::vector<ParamData>& refs);
// The cell of one attribute: the reference value when `useRef` is set or
// the model has no such parameter (no unit system), else the model's value
// with 2 decimals (its principal unit system's name). Empty for other kinds.
std::wstring AttrCellText(const CParamSource& source, const CTkModel& model, ProMdl mdl, const ParamData& ref,
                          bool useRef);

// The attributes of kind "参数", each with the value of its cell in the
// row `cells` (all of the row's columns).
std::vector<ParamData> RowParams(const std::vector<ParamData>& refs, const std::vector<std::wstring>& cells);
// "属性设置" for one row: the parameters written with overwrite, then the
// unit system of the first "系统单位" attribute whose cell names one of the
// model's systems exactly, converted with the same sizes. The answer of
// ApplyParams: anything but 0 writes no unit system either.
int WriteRowAttrs(const CParamSource& source, const CTkModel& model, ProMdl mdl,
                  const std::vector<ParamData>& refs, const std::vector<std::wstring>& cells);
