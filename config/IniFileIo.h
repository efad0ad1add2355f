// Where the profile functions get and put a file's bytes. A file is always read
// and written whole, which lets tests hand in files held in memory and check
// the exact bytes a write produced.
#pragma once

#include <optional>
#include <string>

namespace config {

class IniFileIo {
 public:
  virtual ~IniFileIo() = default;
  // The file's bytes; nullopt when it cannot be read, a missing file included.
  virtual std::optional<std::string> ReadAll(const std::wstring& path) = 0;
  // Replaces the file's content, creating the file if needed; false on failure,
  // and then the file is as it was.
  virtual bool WriteAll(const std::wstring& path, const std::string& bytes) = 0;
};

// The files on disk, paths in the plug-in's backslash form. Stateless and
// shared by every caller.
IniFileIo& DiskIniFileIo();

}  // namespace config
