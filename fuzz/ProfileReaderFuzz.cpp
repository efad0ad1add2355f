// The profile-file reader on any bytes: every read with buffers small and
// large, one write, and a file written back must read back to itself.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

#include "IniFileIo.h"
#include "PrivateProfile.h"
#include "ProfileDocument.h"

namespace {

class OneFile final : public config::IniFileIo {
 public:
  explicit OneFile(std::string bytes) : bytes_(std::move(bytes)) {}
  std::optional<std::string> ReadAll(const std::wstring&) override { return bytes_; }
  bool WriteAll(const std::wstring&, const std::string& bytes) override {
    bytes_ = bytes;
    return true;
  }

 private:
  std::string bytes_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  std::string written = config::ProfileDocument(bytes).Bytes();
  if (config::ProfileDocument(written).Bytes() != written) std::abort();

  OneFile file(bytes);
  const std::wstring name = L"a.cfg";
  for (std::size_t bufferSize : {1, 2, 7, 4096}) {
    std::wstring buffer(bufferSize, L'\0');
    std::size_t count = config::ReadProfileSectionNames(file, name, buffer);
    if (count >= bufferSize) std::abort();
    std::wstring section = buffer.c_str();
    config::ReadProfileSection(file, name, section, buffer);
    config::ReadProfileString(file, name, section, nullptr, buffer);
    config::ReadProfileString(file, name, section, L"k", buffer);
  }
  config::WriteProfileString(file, name, L"BOM", L"LevelType", L"层级 1");
  return 0;
}
