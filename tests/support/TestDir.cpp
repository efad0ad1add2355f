#include "TestDir.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "CodePage.h"

namespace fs = std::filesystem;

TestDir::TestDir() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  std::string name = test ? std::string(test->test_suite_name()) + "-" + test->name() : "outside-test";
  for (char& c : name) {
    if (c == '/') c = '_';
  }
  path_ = fs::temp_directory_path() / ("bom-test-" + std::to_string(::getpid()) + "-" + name);
  fs::remove_all(path_);
  fs::create_directories(path_);
}

TestDir::~TestDir() {
  std::error_code ec;
  fs::remove_all(path_, ec);
}

std::wstring TestDir::Wide(const std::string& relative) const {
  return platform::ToWide((relative.empty() ? path_ : path_ / relative).string());
}

void TestDir::Write(const std::string& relative, const std::string& bytes) const {
  fs::path file = path_ / relative;
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

std::string TestDir::Read(const std::string& relative) const {
  std::ifstream in(path_ / relative, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}
