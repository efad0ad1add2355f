#include "ConfigTestSupport.h"

#include "ApplTextPath.h"

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
  scratch = std::make_unique<TestDir>();
  dir = scratch->path();
}

void TempDirTest::TearDown() { scratch.reset(); }

std::wstring TempDirTest::PathOf(const std::string& name) const { return scratch->Wide(name); }

void TempDirTest::WriteFile(const std::string& name, const std::string& bytes) const {
  scratch->Write(name, bytes);
}

std::string TempDirTest::ReadFile(const std::string& name) const { return scratch->Read(name); }

bool TempDirTest::Exists(const std::string& name) const { return std::filesystem::exists(dir / name); }

void TextRootTest::SetUp() {
  TempDirTest::SetUp();
  protkrt::SetApplTextPath(PathOf(""));
}

void TextRootTest::TearDown() {
  protkrt::SetApplTextPath(L"");
  TempDirTest::TearDown();
}
