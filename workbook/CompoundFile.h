// An OLE2 compound file held in memory: every storage and stream, with the
// class ids of the storages, read and written through libgsf. What .xls files
// are wrapped in.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Bytes.h"

namespace workbook {

struct CompoundEntry {
  std::string name;  // UTF-8
  bool isStorage = false;
  Bytes data;                            // a stream's bytes
  std::array<uint8_t, 16> classId = {};  // a storage's class id
  std::vector<CompoundEntry> children;   // a storage's entries
};

class CompoundFile {
 public:
  // Throws Error when `image` is not a readable compound file.
  static CompoundFile Read(const Bytes& image);
  Bytes Write() const;

  // A stream directly below the root, or null.
  CompoundEntry* FindStream(std::string_view name);
  const CompoundEntry* FindStream(std::string_view name) const;

  const CompoundEntry& root() const { return root_; }

 private:
  CompoundEntry root_;
};

}  // namespace workbook
