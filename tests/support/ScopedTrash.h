// The user's trash moved into a test's directory for the life of the object
// ($XDG_DATA_HOME points there), so that tests never touch the real one,
// and the way a file manager restores what lies in it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "TestDir.h"

class ScopedTrash {
 public:
  // The trash lies in `dir`/xdg/Trash.
  explicit ScopedTrash(const TestDir& dir);
  ~ScopedTrash();
  ScopedTrash(const ScopedTrash&) = delete;
  ScopedTrash& operator=(const ScopedTrash&) = delete;

  std::filesystem::path Files() const { return trash_ / "files"; }
  std::filesystem::path Info() const { return trash_ / "info"; }
  // Names of the trashed entries, sorted.
  std::vector<std::string> Names() const;
  // The original path its info record gives, unescaped; nullopt without one.
  std::optional<std::filesystem::path> OriginalPath(const std::string& name) const;
  // Moves the entry back to its original path and drops its record, as a
  // file manager does; false when that is not possible.
  bool Restore(const std::string& name) const;

 private:
  std::filesystem::path trash_;
  std::optional<std::string> previous_;
};
