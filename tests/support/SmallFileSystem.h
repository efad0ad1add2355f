// A file system of a few kilobytes of its own, mounted for one test, so that
// a write can meet a really full disk. Mounting needs root and the right to
// mount; where the machine refuses, the test skips with the reason.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "TestDir.h"

class SmallFileSystem {
 public:
  // A tmpfs of `kibibytes` at `dir`/small.
  SmallFileSystem(const TestDir& dir, int kibibytes);
  ~SmallFileSystem();
  SmallFileSystem(const SmallFileSystem&) = delete;
  SmallFileSystem& operator=(const SmallFileSystem&) = delete;

  bool mounted() const { return mounted_; }
  // Why it is not mounted.
  const std::string& refusal() const { return refusal_; }
  const std::filesystem::path& path() const { return path_; }

  // Fills the file system with a file "filler" until only `bytesLeft` bytes
  // of room remain.
  void Fill(std::uintmax_t bytesLeft) const;

 private:
  std::filesystem::path path_;
  bool mounted_ = false;
  std::string refusal_;
};
