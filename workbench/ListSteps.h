// The steps of a script that act on a list or a tree: check, select,
// dblclick, edit, menu and dump on a list; the selection of a tree item.
#pragma once

#include <ostream>
#include <string>
#include <vector>

class QAbstractItemView;

struct ListStepResult {
  std::wstring error;  // empty: the step ran
  bool retry = false;  // the error may pass: a row not there yet
};

// `fields` is the whole step, its name first and the list's name second.
ListStepResult RunListStep(QAbstractItemView* view, const std::vector<std::wstring>& fields,
                           std::ostream& out);

// Expands the item's parents and clicks the item; the reason when there is
// no such item.
std::wstring SelectTreeItem(QAbstractItemView* tree, const std::wstring& path);
