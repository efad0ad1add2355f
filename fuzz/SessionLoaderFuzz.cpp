// The simulated host's loader over a session directory made of the input
// (see SessionInput.h), so that sessions, model files and the references
// between them are all mutated.
#include "HostControl.h"
#include "Inspection.h"
#include "SessionInput.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace fs = std::filesystem;

namespace {

const fs::path& Root() {
  static const fs::path root = [] {
    std::string pattern = (fs::temp_directory_path() / "session-fuzz-XXXXXX").string();
    return fs::path(mkdtemp(pattern.data()));
  }();
  return root;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fs::path session = Root() / "session";
  WriteSessionInput(session, std::string_view(reinterpret_cast<const char*>(data), size));
  sim::StartHost({Root()});
  std::string error;
  sim::LoadSession(session, error);
  sim::SessionModels();
  sim::UnloadedModels();
  fs::remove(sim::TrailFilePath());
  return 0;
}
