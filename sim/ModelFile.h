// Model files read back as the simulated host wrote them, for tests and the
// workbench to see what a save put on disk.
#pragma once

#include "ModelDef.h"

#include <filesystem>
#include <optional>

namespace sim {

// The definition the file holds as written: a name the file does not give
// stays empty. Nullopt when it cannot be read or holds no model.
std::optional<ModelDef> ReadModelFile(const std::filesystem::path& file);

}  // namespace sim
