// The plug-in library as the host loads it: through the run-time's entry
// points, with the host's start data checked.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "CodePage.h"
#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"

namespace {

using InitializeFn = int (*)(const ProToolkitHostInfo*, wchar_t*);

class PluginEntryTest : public testing::Test {
 protected:
  void SetUp() override {
    library_ = dlopen(BOM_PLUGIN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library_, nullptr) << dlerror();
    initialize_ = reinterpret_cast<InitializeFn>(dlsym(library_, "user_initialize_plus"));
    ASSERT_NE(initialize_, nullptr);
  }

  ProToolkitHostInfo Info() const {
    return {sizeof(ProToolkitHostInfo), PRO_TOOLKIT_ABI_VERSION, root_.c_str(), 1, "8.0", "test", 0, nullptr};
  }

  TestDir dir_;
  PluginHost host_{dir_};
  std::wstring root_ = host_.TextRoot();
  void* library_ = nullptr;
  InitializeFn initialize_ = nullptr;
};

}  // namespace

TEST_F(PluginEntryTest, OnlyTheTwoEntryPointsAreExported) {
  EXPECT_NE(dlsym(library_, "user_terminate_plus"), nullptr);
  EXPECT_EQ(dlsym(library_, "user_initialize"), nullptr);
  EXPECT_EQ(dlsym(library_, "ProToolkitApplTextPathGet"), nullptr);
}

TEST_F(PluginEntryTest, StartRegistersTheCommandsWithIconsFromTheResourcePath) {
  ProToolkitHostInfo info = Info();
  wchar_t error[80] = {};
  ASSERT_EQ(initialize_(&info, error), 0);
  auto commands = sim::Commands();
  ASSERT_EQ(commands.size(), 19u);
  EXPECT_EQ(platform::ToWide(commands[1].icon.parent_path().filename().string()), L"resource");
}

TEST_F(PluginEntryTest, HostDataOfAnotherBuildIsRefusedWithAReason) {
  wchar_t error[80] = {};
  ProToolkitHostInfo info = Info();
  info.size = 8;
  EXPECT_NE(initialize_(&info, error), 0);
  EXPECT_NE(std::wstring(error).find(L"unknown host data"), std::wstring::npos);
  info = Info();
  info.abi_version = 7;
  EXPECT_NE(initialize_(&info, error), 0);
  EXPECT_NE(std::wstring(error).find(L"version mismatch"), std::wstring::npos);
  EXPECT_NE(initialize_(nullptr, error), 0);
  EXPECT_TRUE(sim::Commands().empty()) << "nothing registered";
}
