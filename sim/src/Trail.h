// The host's trail file: trail.txt.N in the working directory, a new N at
// each start, UTF-8 lines ending in "\n".
#pragma once

#include <filesystem>
#include <string_view>

namespace sim {

// One above the highest trail.txt.K in dir; trail.txt.1 in a directory
// without trail files.
std::filesystem::path NextTrailFile(const std::filesystem::path& dir);

// Writes the header line the host starts every trail with.
bool StartTrail(const std::filesystem::path& file);

bool AppendTrailLine(const std::filesystem::path& file, std::string_view line);

}  // namespace sim
