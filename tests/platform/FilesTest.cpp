#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "CodePage.h"
#include "Files.h"
#include "TestDir.h"

namespace fs = std::filesystem;

namespace {

class FilesTest : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(dir_.path() / "sub");
    for (const char* name : {"a.prt", "a.prt.1", "a.prt.2", "b.asm.3", "readme"}) dir_.Write(name, "x");
  }

  std::wstring Dir() const { return dir_.Wide(); }

  std::vector<std::wstring> Names(const std::wstring& pattern) const {
    std::vector<std::wstring> names;
    for (const auto& entry : platform::EnumerateDirectory(pattern)) names.push_back(entry.name);
    std::sort(names.begin(), names.end());
    return names;
  }

  TestDir dir_;
};

}  // namespace

TEST_F(FilesTest, BackslashesAndDoubledSeparatorsNameTheSameFile) {
  std::wstring windowsStyle = Dir();
  std::replace(windowsStyle.begin(), windowsStyle.end(), L'/', L'\\');
  EXPECT_TRUE(platform::FileExists(windowsStyle + L"\\\\a.prt.1"));
  EXPECT_TRUE(platform::FileExists(Dir() + L"//sub"));
  EXPECT_TRUE(platform::DirectoryExists(windowsStyle + L"\\sub\\"));
  EXPECT_FALSE(platform::FileExists(Dir() + L"\\missing"));
  EXPECT_FALSE(platform::FileExists(L""));
}

TEST_F(FilesTest, StarDotStarListsEveryEntryWithDotEntries) {
  auto names = Names(Dir() + L"\\*.*");
  std::vector<std::wstring> expected = {L".",       L"..",      L"a.prt",  L"a.prt.1",
                                        L"a.prt.2", L"b.asm.3", L"readme", L"sub"};
  EXPECT_EQ(names, expected);
  auto entries = platform::EnumerateDirectory(Dir() + L"\\*.*");
  auto sub = std::find_if(entries.begin(), entries.end(), [](const auto& e) { return e.name == L"sub"; });
  ASSERT_NE(sub, entries.end());
  EXPECT_TRUE(sub->isDirectory);
}

TEST_F(FilesTest, VersionedPatternFindsOnlyVersionedFiles) {
  // The dot behind the extension keeps the unversioned a.prt out.
  EXPECT_EQ(Names(Dir() + L"\\*.prt.*"), (std::vector<std::wstring>{L"a.prt.1", L"a.prt.2"}));
  EXPECT_EQ(Names(Dir() + L"\\*.ASM.*"), (std::vector<std::wstring>{L"b.asm.3"}));
}

TEST_F(FilesTest, MissingDirectoryEnumeratesNothing) { EXPECT_TRUE(Names(Dir() + L"\\nope\\*.*").empty()); }

TEST(Wildcard, FollowsTheSystemRules) {
  EXPECT_TRUE(platform::WildcardMatch(L"*.prt", L"BOLT.PRT"));
  EXPECT_TRUE(platform::WildcardMatch(L"a?c", L"abc"));
  EXPECT_FALSE(platform::WildcardMatch(L"a?c", L"ac"));
  EXPECT_TRUE(platform::WildcardMatch(L"*.*", L"noext"));
  EXPECT_FALSE(platform::WildcardMatch(L"*.prt", L"a.prt.1"));
}
