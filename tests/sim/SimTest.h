// A simulated host started in a fresh directory for each test.
#pragma once

#include "HostControl.h"
#include "ProObjects.h"
#include "TestDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

class SimTest : public ::testing::Test {
 protected:
  // Started in the constructor, so that fixtures can add models in theirs.
  SimTest() {
    std::filesystem::create_directories(dir.path() / "work");
    sim::StartHost({dir.path() / "work"});
  }

  std::wstring Name(ProMdl mdl) const;
  std::wstring Origin(ProMdl mdl) const;
  ProMdl Load(const std::wstring& path, ProError expected = PRO_TK_NO_ERROR) const;

  TestDir dir;
};

// A model file of `type` ("part", "assembly", "drawing") with further JSON keys.
std::string ModelJson(const std::string& type, const std::string& keys = "");
// One message-file group per key: the key, the English text, the
// translation ("#" for none) and "#".
std::string MessageFileText(const std::vector<std::pair<std::string, std::string>>& keyAndText);
