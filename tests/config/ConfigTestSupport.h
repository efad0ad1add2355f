// Files for the configuration tests: memory files behind the profile
// functions, and a fresh directory on disk for each test.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

#include "ApplTextPath.h"
#include "IniFileIo.h"
#include "TestDir.h"

class MemoryFiles : public config::IniFileIo {
 public:
  std::optional<std::string> ReadAll(const std::wstring& path) override {
    auto found = files.find(path);
    return found == files.end() ? std::nullopt : std::optional(found->second);
  }
  bool WriteAll(const std::wstring& path, const std::string& bytes) override {
    ++writeCount;
    files[path] = bytes;
    return true;
  }

  std::map<std::wstring, std::string> files;
  int writeCount = 0;
};

// The test's directory is the plug-in's text root.
class TextRootTest : public ::testing::Test {
 protected:
  TextRootTest() { protkrt::SetApplTextPath(dir.Wide()); }
  ~TextRootTest() override { protkrt::SetApplTextPath(L""); }

  TestDir dir;
};
