#include "FilterRules.h"

#include <algorithm>

#include "TkFile.h"
#include "TkText.h"

BomCollectFilter MakeCollectFilter(const BomFilter& scheme, const std::wstring& modelNameKey) {
  BomCollectFilter filter;
  filter.key = scheme.RefParamName == modelNameKey ? std::wstring() : scheme.RefParamName;
  CTkFile().SplitText(scheme.FilterKey, filter.values, L',', 1);
  filter.keepMatches = scheme.IsShow;
  return filter;
}

FilterData CollectColumnValues(int col, const std::vector<std::wstring>& cellTexts) {
  FilterData data;
  data.col = col;
  data.name = L"Col" + std::to_wstring(col);
  for (const std::wstring& text : cellTexts) {
    if (std::ranges::find(data.values, text) == data.values.end()) data.values.push_back(text);
  }
  return data;
}

FilterData MakeFilterResult(const FilterData& column, const std::vector<bool>& checked, bool include) {
  FilterData result;
  result.col = column.col;
  result.name = column.name;
  if (std::ranges::none_of(checked, [](bool mark) { return mark; })) return result;
  for (size_t row = 0; row < checked.size() && row < column.values.size(); ++row) {
    if (checked[row] != include) result.values.push_back(column.values[row]);
  }
  return result;
}

bool IsRemovedByFilter(const FilterData& result, const std::wstring& cellText) {
  std::wstring upper = tktext::Upper(cellText);
  return std::ranges::any_of(result.values,
                             [&](const std::wstring& value) { return tktext::Upper(value) == upper; });
}
