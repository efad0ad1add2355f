// A machine of a given number of occurrences for the benchmarks: the top
// holds instances of a fixed set of groups; each group holds units and parts,
// each unit parts, all drawn from fixed pools, so that the models in session
// stay the same in number while the occurrences grow.
#pragma once

#include "ProObjects.h"

// Occurrences one instance of a group brings: itself, 4 units of 1 + 9 and
// 6 parts.
constexpr int kOccurrencesPerGroup = 47;

// Starts a fresh host in `workDir`, builds the machine of about `occurrences`
// occurrences and makes its top assembly current.
ProMdl BuildGeneratedAssembly(const char* workDir, int occurrences);
