// Reading a drawing table back from a saved drawing's definition.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ModelDef.h"

// The texts of the cell's lines; nullopt for a cell without note.
std::optional<std::vector<std::wstring>> CellLines(const sim::TableDef& table, int row, int column);
// The sum of the row heights.
double TableHeight(const sim::TableDef& table);
