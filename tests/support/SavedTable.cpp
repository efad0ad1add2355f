#include "SavedTable.h"

#include <algorithm>

std::optional<std::vector<std::wstring>> CellLines(const sim::TableDef& table, int row, int column) {
  auto cell = std::find_if(table.cells.begin(), table.cells.end(),
                           [&](const sim::CellDef& c) { return c.row == row && c.column == column; });
  if (cell == table.cells.end()) return std::nullopt;
  std::vector<std::wstring> lines;
  for (const auto& texts : cell->lines) {
    std::wstring line;
    for (const auto& text : texts) line += text.text;
    lines.push_back(line);
  }
  return lines;
}

double TableHeight(const sim::TableDef& table) {
  double sum = 0;
  for (double row : table.rows) sum += row;
  return sum;
}
