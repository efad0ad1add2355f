#include "IniFileIo.h"

#include "FileWrite.h"
#include "Files.h"

namespace config {
namespace {

class DiskFiles final : public IniFileIo {
 public:
  std::optional<std::string> ReadAll(const std::wstring& path) override {
    return platform::ReadFileBytes(path);
  }

  bool WriteAll(const std::wstring& path, const std::string& bytes) override {
    return !platform::WriteFileAtomically(path, bytes);
  }
};

}  // namespace

IniFileIo& DiskIniFileIo() {
  static DiskFiles files;
  return files;
}

}  // namespace config
