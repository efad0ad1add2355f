// The parts of a zip package (an .xlsx file) held in memory in their order,
// read and written through libgsf. A part that is not changed is written with
// the same bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Bytes.h"

namespace workbook {

struct ZipPart {
  std::string name;  // "xl/workbook.xml": no leading slash
  Bytes data;
};

class ZipPackage {
 public:
  // Throws Error when `image` is not a readable zip file.
  static ZipPackage Read(const Bytes& image);
  Bytes Write() const;

  // Part names compare without regard to ASCII case, as package names do.
  ZipPart* Find(std::string_view name);
  const ZipPart* Find(std::string_view name) const;
  void Add(std::string name, Bytes data);
  void Remove(std::string_view name);

 private:
  std::vector<ZipPart> parts_;
};

}  // namespace workbook
