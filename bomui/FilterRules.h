// The rules of the two filters of the bill of materials, without a window:
// a stored scheme turned into the collection's row filter, and the in-list
// filter's columns, result and removal test.
#pragma once

#include <string>
#include <vector>

#include "BomCollectFilter.h"
#include "BomFilter.h"
#include "FilterData.h"

// `RefParamName` "模型名称" (`modelNameKey`) tests the model's name; the
// keys are split at "," and trimmed; `IsShow` keeps the matches.
BomCollectFilter MakeCollectFilter(const BomFilter& scheme, const std::wstring& modelNameKey);

// The distinct texts of one column in order of first appearance; texts that
// differ in case are distinct.
FilterData CollectColumnValues(int col, const std::vector<std::wstring>& cellTexts);

// What "确定" of the filter dialog gives for `column`, whose values are the
// rows of its list with their check marks: the values to take out. With
// `include` ("包含") the unchecked ones, otherwise ("排除") the checked ones;
// nothing when no row is checked.
FilterData MakeFilterResult(const FilterData& column, const std::vector<bool>& checked, bool include);

// A row goes when its text equals one of the result's values, both
// upper-cased.
bool IsRemovedByFilter(const FilterData& result, const std::wstring& cellText);
