// Models of the automation tests: version files in the host's work
// directory, loaded into session.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "HostControl.h"
#include "TestDir.h"

// Writes `file`.1 to `file`.`versions` into `dir`/work and loads the newest.
inline ProMdl LoadVersions(const TestDir& dir, const std::string& file, const std::string& json,
                           int versions) {
  for (int i = 1; i <= versions; ++i) dir.Write("work/" + file + "." + std::to_string(i), json);
  ProMdl mdl = sim::OpenModel(std::wstring(file.begin(), file.end()));
  EXPECT_NE(mdl, nullptr) << file;
  return mdl;
}
