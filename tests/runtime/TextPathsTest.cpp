#include <gtest/gtest.h>

#include <filesystem>

#include "ApplTextPath.h"
#include "CodePage.h"
#include "Files.h"
#include "ProToolkitDll.h"
#include "TestDir.h"
#include "TextPaths.h"

namespace fs = std::filesystem;

namespace {

class TextPathsTest : public testing::Test {
 protected:
  void SetUp() override { fs::create_directories(dir_.path() / "text"); }
  std::wstring Root() const { return dir_.Wide(); }
  TestDir dir_;
  const fs::path& root_ = dir_.path();
};

}  // namespace

TEST_F(TextPathsTest, WithoutLanguageDirectoryThePathsLieInTextItself) {
  auto paths = protkrt::BuildTextPaths(Root(), 1);
  EXPECT_EQ(paths.message, Root() + L"\\text");
  EXPECT_EQ(paths.menu, Root() + L"\\text\\menus");
  EXPECT_EQ(paths.resource, Root() + L"\\text\\resource");
}

TEST_F(TextPathsTest, LanguageDirectoryWinsAndFallsBackToLanguageSix) {
  fs::create_directories(root_ / "text" / "usascii");
  auto fallback = protkrt::BuildTextPaths(Root(), 1);
  EXPECT_EQ(fallback.message, Root() + L"\\text\\usascii");
  EXPECT_EQ(fallback.menu, Root() + L"\\text\\usascii\\menus");

  fs::create_directories(root_ / "text" / "chinese_cn");
  auto own = protkrt::BuildTextPaths(Root(), 1);
  EXPECT_EQ(own.message, Root() + L"\\text\\chinese_cn");
  EXPECT_EQ(own.resource, Root() + L"\\text\\chinese_cn\\resource");
}

TEST(DeliveredTextTree, EachFileLiesInTheTextPathTheHostLooksIn) {
  // The delivered tree has no language directory, as the plug-in ships.
  protkrt::TextPaths paths = protkrt::BuildTextPaths(platform::ToWide(BOM_SOURCE_DIR "/data"), 1);
  for (const wchar_t* menuFile : {L"BOMMenu.txt", L"ParamMenu.txt", L"AutoMenu.txt", L"UserLibMenu.txt"})
    EXPECT_TRUE(platform::FileExists(paths.menu + L"\\" + menuFile)) << platform::ToNarrow(menuFile);
  for (const wchar_t* messageFile : {L"usermsg.txt", L"BOMMsg.txt"})
    EXPECT_TRUE(platform::FileExists(paths.message + L"\\" + messageFile)) << platform::ToNarrow(messageFile);
  EXPECT_TRUE(platform::FileExists(paths.resource + L"\\BOMShow.gif"));
}

TEST(ApplTextPath, HostGetsTheRecordedTextDirectory) {
  protkrt::SetApplTextPath(L"C:\\p");
  ProPath path{};
  ASSERT_EQ(ProToolkitApplTextPathGet(path), PRO_TK_NO_ERROR);
  EXPECT_STREQ(path, L"C:\\p");
  EXPECT_EQ(ProToolkitApplTextPathGet(nullptr), PRO_TK_BAD_INPUTS);
}
