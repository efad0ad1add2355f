// Random assemblies in the simulated host, for comparing the engine with the
// literal rules: random depth and width, shared sub-assemblies, suppressed
// components, concept models (subtype 5), names that differ in case only,
// a part and an assembly of one name, a sort parameter "KEY" on most models.
#pragma once

#include <random>

#include "ProObjects.h"

// Puts a new tree into the (freshly started) session and makes the current
// model of it: mostly the top assembly, sometimes a drawing of it, rarely a
// part. Returns the current model.
ProMdl MakeRandomTree(std::mt19937& random);
