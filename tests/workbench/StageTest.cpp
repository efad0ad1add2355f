// The workbench's default plug-in root is the build's stage, and a run there
// writes the dialog's clicks into it as a user's clicks do. The tests'
// installation is staged apart and stays as delivered.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "PluginHost.h"

namespace fs = std::filesystem;

namespace {

std::string Bytes(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

TEST(StageTest, AUseOfTheWorkbenchLeavesTheTestsInstallationAsDelivered) {
  TestDir dir;
  // Every option below is written to the settings of the default root.
  std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " + std::string(BOM_WORKBENCH) +
                        " bom --workdir '" + (dir.path() / "work").string() +
                        "' --level summary --excel --text --out '" + (dir.path() / "out").string() +
                        "/' >/dev/null 2>&1";
  ASSERT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);

  PluginHost host(dir);
  fs::path delivered = fs::path(BOM_SOURCE_DIR) / "data";
  int compared = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(delivered)) {
    fs::path relative = fs::relative(entry.path(), delivered);
    if (!entry.is_regular_file() || relative.parent_path().empty() || relative.extension() == ".py") continue;
    EXPECT_EQ(Bytes(dir.path() / "app" / relative), Bytes(entry.path())) << relative;
    ++compared;
  }
  EXPECT_GT(compared, 10);
}

}  // namespace
