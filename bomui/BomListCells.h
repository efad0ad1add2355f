// The cells of the bill of materials list: each column's text for a row, by
// the column's kind, and the rules around the list that need no window.
#pragma once

#include <string>
#include <vector>

#include "BomFillCache.h"
#include "BomMdl.h"
#include "ColInfo.h"
#include "TkBOM.h"
#include "TkLog.h"
#include "TkModel.h"
#include "TkParam.h"

// The outline number of a multi-level row joined by `levelSign`; "0" for
// the top row; empty for the rows of the other lists (level below 0).
std::wstring LevelText(const BomMdl& row, const std::wstring& levelSign);
// `decimals` decimals, but exactly 0 is "0".
std::wstring MassText(double mass, int decimals);
// The host's value type a column writes back with: 0 text, 1 integer,
// 2 real; any other number text.
int ParamValueTypeOf(int valueType);
// The index in the rows of a list row with this first-column text: its
// number less one, -1 for a text that is no number.
int RowIndexOf(const std::wstring& firstColumnText);
// True when the sort box's entry `selection` (0: the model tree) names a
// column without a parameter to sort by.
bool IsSortParamMissing(int selection, const std::vector<ColInfo>& sortCols);
// Rows whose first occurrence lies deeper than the toolkit's paths or has a
// component id above 99999 are not shown; the top row is.
bool IsRowShown(const BomMdl& row);

// The cells of one filling of the list: each model's mass and outline box
// is asked of the host once while the object lives, so make one per filling.
class CBomListCells {
 public:
  CBomListCells(std::wstring levelSign, int massDecimals);

  // The text of `col` for row `index` of the list; the column's default
  // value when it comes out empty. Asks the host, and logs some kinds.
  std::wstring CellText(const ColInfo& col, const BomMdl& row, int index) const;

 private:
  std::wstring KindText(const ColInfo& col, const BomMdl& row, int index) const;
  std::wstring Logged(const std::wstring& kind, std::wstring text) const;

  std::wstring levelSign_;
  int massDecimals_;
  TkBOM bom_;
  CTkModel model_;
  CTkParam param_;
  CTkLog log_;
  mutable BomFillCache cache_;
};
