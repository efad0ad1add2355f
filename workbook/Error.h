// The one failure of the spreadsheet engine: a file it cannot read or write,
// a sheet or cell that does not exist. The message says which.
#pragma once

#include <stdexcept>
#include <string>

namespace workbook {

class Error : public std::runtime_error {
 public:
  explicit Error(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace workbook
