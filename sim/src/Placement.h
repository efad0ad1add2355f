// Placements of components: the host's 4x4 matrices, which act on a point
// as a row vector (p' = p * M), the translation in the fourth row.
#pragma once

#include "Host.h"

#include <array>
#include <optional>

namespace sim {

using Point = std::array<double, 3>;

// `first` applied, then `second`.
Transform Then(const Transform& first, const Transform& second);
// Nullopt for a matrix whose axes do not span space.
std::optional<Transform> Inverse(const Transform& m);
Point Apply(const Transform& m, const Point& point);

// From the coordinates of the model at the end of the ids to those of `top`:
// the placements of the components along the way composed. Nullopt where the
// ids do not lead down.
std::optional<Transform> PathPlacement(const HostState& state, const Model* top, const int* ids, int count);

}  // namespace sim
