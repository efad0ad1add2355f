// STEP and IGES files of a solid through Open CASCADE. A part is the boxes
// of its surfaces: a box with volume a solid (or its shell when no solids
// are asked for), a flat one a face, and one without area nothing. An
// assembly is its active components under their placements.
#pragma once

#include "Host.h"

#include <filesystem>
#include <string>

namespace sim {

enum class Format3D { Step, Iges };

struct Export3DOptions {
  Format3D format = Format3D::Step;
  bool structure = true;  // STEP only: the assembly as products and their placements
  bool solids = true;
};

struct Export3DResult {
  bool written = false;
  int solids = 0;        // in the file, counted over every placed instance
  std::string messages;  // the translator's, a line each
};

// Writes `file` as given (the caller names its extension).
Export3DResult Write3DFile(const HostState& state, const Model& top, const Export3DOptions& options,
                           const std::filesystem::path& file);

}  // namespace sim
