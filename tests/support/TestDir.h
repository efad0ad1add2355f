// A fresh directory for one test, removed at its end.
#pragma once

#include <filesystem>
#include <string>

class TestDir {
 public:
  // Named after the running test and the process, so parallel runs never meet;
  // the name holds no dot, which some path rules of the plug-in look for.
  TestDir();
  ~TestDir();
  TestDir(const TestDir&) = delete;
  TestDir& operator=(const TestDir&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // The path as the plug-in writes paths: wide text.
  std::wstring Wide(const std::string& relative = "") const;
  void Write(const std::string& relative, const std::string& bytes) const;
  std::string Read(const std::string& relative) const;

 private:
  std::filesystem::path path_;
};
