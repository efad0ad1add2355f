// The JSON text of a model file and the model definition it holds. Readers
// of keys beyond the definition parse the text kept in the model themselves.
#pragma once

#include "ModelDef.h"

#include <string>
#include <string_view>

namespace sim {

// PRO_TK_INVALID_FILE for text that is no JSON object, lacks a known `type`
// or has a key of the wrong kind; `def` is untouched then, and `error` (when
// given) says where the text went wrong.
ProError ParseModelDocument(std::string_view text, ModelDef& def, std::string* error = nullptr);

std::string ModelDocument(const ModelDef& def);

}  // namespace sim
