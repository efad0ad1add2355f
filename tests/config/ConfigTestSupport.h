// Files for the configuration tests: memory files behind the profile
// functions, and a fresh directory on disk for each test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "IniFileIo.h"
#include "TestDir.h"

class MemoryFiles : public config::IniFileIo {
 public:
  std::optional<std::string> ReadAll(const std::wstring& path) override;
  bool WriteAll(const std::wstring& path, const std::string& bytes) override;

  std::map<std::wstring, std::string> files;
  int writeCount = 0;
};

class TempDirTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // `name` inside the test's directory, as the plug-in would name it.
  std::wstring PathOf(const std::string& name) const;
  void WriteFile(const std::string& name, const std::string& bytes) const;
  std::string ReadFile(const std::string& name) const;
  bool Exists(const std::string& name) const;

  std::filesystem::path dir;
  std::unique_ptr<TestDir> scratch;
};

// The test's directory is the plug-in's text root.
class TextRootTest : public TempDirTest {
 protected:
  void SetUp() override;
  void TearDown() override;
};
