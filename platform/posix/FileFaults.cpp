#include "FileFaults.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include "InjectedFaults.h"

namespace fs = std::filesystem;

namespace platform {
namespace {

std::mutex guard;
std::vector<FileFault> faults;

fs::path Normal(const fs::path& path) {
  std::error_code ignored;
  return fs::weakly_canonical(fs::absolute(path), ignored);
}

bool Applies(const FileFault& fault, const fs::path& target) {
  if (fault.where.empty()) return true;
  fs::path where = Normal(fault.where);
  return where == target || where == target.parent_path();
}

}  // namespace

void InjectFileFault(const FileFault& fault) {
  std::lock_guard lock(guard);
  faults.push_back(fault);
}

void ClearFileFaults() {
  std::lock_guard lock(guard);
  faults.clear();
}

WriteFaults FaultsOnWriteOf(const fs::path& target) {
  std::lock_guard lock(guard);
  WriteFaults found;
  if (faults.empty()) return found;
  fs::path normal = Normal(target);
  for (const FileFault& fault : faults) {
    if (!Applies(fault, normal)) continue;
    switch (fault.kind) {
      case FileFaultKind::kDiskFull:
        found.bytesBeforeFull =
            std::min(found.bytesBeforeFull.value_or(fault.bytesBeforeFull), fault.bytesBeforeFull);
        break;
      case FileFaultKind::kReadOnlyDirectory:
        found.readOnlyDirectory = true;
        break;
      case FileFaultKind::kHeldOpen:
        found.heldOpen = true;
        break;
      case FileFaultKind::kRenameRefused:
        found.renameRefused = true;
        break;
    }
  }
  return found;
}

}  // namespace platform
