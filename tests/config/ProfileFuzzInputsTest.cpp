// The fuzzing corpus of the profile-file reader and every input with which
// fuzzing once broke it: each reads, and what a file is written back as
// reads back to the same bytes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ProfileDocument.h"

namespace fs = std::filesystem;

namespace {

TEST(ProfileFuzzInputs, EachReadsAndItsWriteBackReadsToItself) {
  int count = 0;
  for (const char* folder : {"profile", "findings-profile"}) {
    fs::path dir = fs::path(BOM_SOURCE_DIR) / "tests" / "data" / "fuzz" / folder;
    if (!fs::exists(dir)) continue;
    for (const auto& entry : fs::directory_iterator(dir)) {
      std::ifstream in(entry.path(), std::ios::binary);
      std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
      ++count;
      config::ProfileDocument document(bytes);
      std::string written = document.Bytes();
      EXPECT_EQ(config::ProfileDocument(written).Bytes(), written) << entry.path();
    }
  }
  EXPECT_GT(count, 0);
}

}  // namespace
