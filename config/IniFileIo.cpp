#include "IniFileIo.h"

#include <fstream>

#include "Files.h"

namespace config {
namespace {

class DiskFiles final : public IniFileIo {
 public:
  std::optional<std::string> ReadAll(const std::wstring& path) override {
    return platform::ReadFileBytes(path);
  }

  bool WriteAll(const std::wstring& path, const std::string& bytes) override {
    std::ofstream out(platform::ResolvePath(path), std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    return !out.fail();
  }
};

}  // namespace

IniFileIo& DiskIniFileIo() {
  static DiskFiles files;
  return files;
}

}  // namespace config
