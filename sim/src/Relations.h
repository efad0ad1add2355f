// Relations as the host reads them: which lines it takes, and what their
// assignments do to a model's parameters when the relations regenerate.
#pragma once

#include "Model.h"

#include <string>
#include <string_view>
#include <vector>

namespace sim {

// Blank, a comment ("/*" first), or NAME = EXPRESSION, where an expression
// holds numbers, texts in double quotes, names, function calls, + - * / ^
// and balanced parentheses.
bool IsRelationLine(std::wstring_view line);

// Runs the assignments in order on the parameters of `model`: an existing
// parameter keeps its type, a new name becomes a parameter of the value's
// type. A line whose value cannot be worked out (an unknown name or
// function, a text where a number belongs, a division by zero) changes
// nothing; false when there was such a line.
bool EvaluateRelations(const std::vector<std::wstring>& lines, Model& model);

}  // namespace sim
