#include "ConfigTestSupport.h"

#include <stdlib.h>

#include <fstream>
#include <sstream>

#include "CodePage.h"

std::optional<std::string> MemoryFiles::ReadAll(const std::wstring& path) {
  auto found = files.find(path);
  if (found == files.end()) return std::nullopt;
  return found->second;
}

bool MemoryFiles::WriteAll(const std::wstring& path, const std::string& bytes) {
  ++writeCount;
  files[path] = bytes;
  return true;
}

void TempDirTest::SetUp() {
  std::string pattern = (std::filesystem::temp_directory_path() / "config_tests.XXXXXX").string();
  ASSERT_NE(mkdtemp(pattern.data()), nullptr);
  dir = pattern;
}

void TempDirTest::TearDown() { std::filesystem::remove_all(dir); }

std::wstring TempDirTest::PathOf(const std::string& name) const {
  return platform::ToWide((dir / name).string());
}

void TempDirTest::WriteFile(const std::string& name, const std::string& bytes) const {
  std::filesystem::create_directories((dir / name).parent_path());
  std::ofstream(dir / name, std::ios::binary) << bytes;
}

std::string TempDirTest::ReadFile(const std::string& name) const {
  std::ostringstream bytes;
  bytes << std::ifstream(dir / name, std::ios::binary).rdbuf();
  return bytes.str();
}

bool TempDirTest::Exists(const std::string& name) const { return std::filesystem::exists(dir / name); }
