// The text of a material file of the host's present form (.mtl).
#pragma once

#include <string>

// A material `name` with a description, a Young's modulus and the mass
// density `density`, a number and its unit such as "7.85e-09 tonne/mm^3".
std::string MaterialFileText(const std::string& name, const std::string& density);
