// The host's material files: the mass density they give.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sim {

struct MaterialDensity {
  double value = 0;
  std::wstring unit;  // such as "tonne/mm^3"; empty: the model's own units
};

// From a material file of the present form (.mtl): the "Default" of the
// parameter block named PTC_MASS_DENSITY, a number and its unit.
std::optional<MaterialDensity> ReadMtlDensity(std::string_view text);
// From a file of the older form (.mat): the line "MASS_DENSITY = value".
std::optional<MaterialDensity> ReadMatDensity(std::string_view text);

}  // namespace sim
