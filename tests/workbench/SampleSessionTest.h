// The plug-in registered in a host holding the sample session, for the tests
// of the workbench's window and of its scripted sessions.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "HostControl.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"

class SampleSessionTest : public testing::Test {
 protected:
  void SetUp() override {
    AutoSaveStarted = 1;  // the plug-in's own timers are not under test here
    user_initialize(0, nullptr, nullptr, nullptr, nullptr);
    ASSERT_EQ(sim::LoadSession(std::filesystem::path(BOM_SAMPLES_DIR) / "reducer"), PRO_TK_NO_ERROR);
  }

  TestDir dir_;
  PluginHost host_{dir_};
};
