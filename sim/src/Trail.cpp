#include "Trail.h"

#include "FileLookup.h"
#include "Files.h"
#include "Text.h"

#include <algorithm>
#include <fstream>

namespace sim {
namespace {

bool Write(const std::filesystem::path& file, std::ios::openmode mode, std::string_view line) {
  std::ofstream out(file, std::ios::binary | mode);
  out << line << '\n';
  return static_cast<bool>(out.flush());
}

}  // namespace

std::filesystem::path NextTrailFile(const std::filesystem::path& dir) {
  int highest = 0;
  for (const platform::DirEntry& entry : platform::EnumerateDirectory(WideText(dir) + L"/trail.txt.*")) {
    ModelFileName name = ParseModelFileName(entry.name);
    bool isTrail = SameNoCase(name.stem, L"trail") && name.extension == L"txt";
    if (!entry.isDirectory && isTrail && name.version) highest = std::max(highest, *name.version);
  }
  return dir / ("trail.txt." + std::to_string(highest + 1));
}

bool StartTrail(const std::filesystem::path& file) {
  return Write(file, std::ios::trunc, "!trail file version No. 1600");
}

bool AppendTrailLine(const std::filesystem::path& file, std::string_view line) {
  return Write(file, std::ios::app, line);
}

}  // namespace sim
