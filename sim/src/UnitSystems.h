// The unit systems of a solid: those its model file lists, or the host's
// standard set, and the principal one, whose units the host's calls without
// a unit of their own use.
#pragma once

#include "Model.h"

#include <optional>
#include <string>
#include <vector>

namespace sim {

std::vector<std::wstring> UnitSystems(const Model& model);
std::wstring PrincipalUnitSystem(const Model& model);

// A value given in `unit` in the unit of the same dimension of the model's
// principal system; unchanged when either is a unit not known here.
double InPrincipalUnits(const Model& model, double value, const std::wstring& unit);
// A density given in `unit`, a mass unit over a cubed length unit such as
// "tonne/mm^3", in the principal system's mass over its length cubed;
// nullopt for a unit of another form or one not known here.
std::optional<double> DensityInPrincipalUnits(const Model& model, double value, const std::wstring& unit);

}  // namespace sim
