// What the test-injected faults of FileFaults.h do to one write.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace platform {

struct WriteFaults {
  std::optional<std::uintmax_t> bytesBeforeFull;
  bool readOnlyDirectory = false;
  bool heldOpen = false;
  bool renameRefused = false;
};

// The faults that apply to a write of `target`; none when no test set any.
WriteFaults FaultsOnWriteOf(const std::filesystem::path& target);

}  // namespace platform
