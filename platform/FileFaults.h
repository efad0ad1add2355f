// Test control: makes WriteFileAtomically fail the way the system makes it
// fail, without a full disk or a second program at hand. Only tests call
// these; with no fault injected the writer runs untouched.
#pragma once

#include <cstdint>
#include <filesystem>

namespace platform {

enum class FileFaultKind {
  kDiskFull,           // writing a file stops with ENOSPC after `bytesBeforeFull` bytes
  kReadOnlyDirectory,  // no file can be made in the directory (EACCES)
  kHeldOpen,           // another program holds the target: the replace fails (EBUSY)
  kRenameRefused,      // the rename over the target is refused (EPERM)
};

struct FileFault {
  FileFaultKind kind = FileFaultKind::kDiskFull;
  // The target file, or a directory for every target directly in it; empty
  // for every target.
  std::filesystem::path where;
  std::uintmax_t bytesBeforeFull = 0;
};

// Adds a fault that lasts until ClearFileFaults.
void InjectFileFault(const FileFault& fault);
void ClearFileFaults();

}  // namespace platform
