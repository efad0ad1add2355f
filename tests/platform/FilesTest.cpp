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

TEST_F(FilesTest, VersionedPatternFindsOnlyVersionedFilesAndAMissingDirectoryNothing) {
  // The dot behind the extension keeps the unversioned a.prt out.
  EXPECT_EQ(Names(Dir() + L"\\*.prt.*"), (std::vector<std::wstring>{L"a.prt.1", L"a.prt.2"}));
  EXPECT_EQ(Names(Dir() + L"\\*.ASM.*"), (std::vector<std::wstring>{L"b.asm.3"}));
  EXPECT_TRUE(Names(Dir() + L"\\nope\\*.*").empty());
}

TEST(Wildcard, FollowsTheSystemRules) {
  EXPECT_TRUE(platform::WildcardMatch(L"*.prt", L"BOLT.PRT"));
  EXPECT_TRUE(platform::WildcardMatch(L"a?c", L"abc"));
  EXPECT_FALSE(platform::WildcardMatch(L"a?c", L"ac"));
  EXPECT_TRUE(platform::WildcardMatch(L"*.*", L"noext"));
  EXPECT_FALSE(platform::WildcardMatch(L"*.prt", L"a.prt.1"));
}

TEST_F(FilesTest, NamesDifferingInCaseOnlyFindTheFileThatExists) {
  dir_.Write("template/BOM.xls", "book");
  EXPECT_TRUE(platform::FileExists(Dir() + L"\\TEMPLATE\\bom.xls"));
  EXPECT_EQ(platform::ResolvePath(Dir() + L"\\Template\\Bom.XLS"), dir_.path() / "template" / "BOM.xls");
  EXPECT_EQ(Names(Dir() + L"\\TEMPLATE\\*.*").size(), 3u) << ". and .. and BOM.xls";
  // What does not exist keeps its spelling behind the part that does.
  EXPECT_EQ(platform::ResolvePath(Dir() + L"\\TEMPLATE\\New\\x.xls"),
            dir_.path() / "template" / "New" / "x.xls");
}

TEST_F(FilesTest, ExactSpellingWinsOverAnotherCase) {
  dir_.Write("Sub2/x", "upper");
  dir_.Write("sub2/x", "lower");
  EXPECT_EQ(platform::ResolvePath(Dir() + L"\\sub2\\x"), dir_.path() / "sub2" / "x");
  EXPECT_EQ(platform::ResolvePath(Dir() + L"\\Sub2\\x"), dir_.path() / "Sub2" / "x");
}

TEST_F(FilesTest, CopyFileReplacesUnlessToldToFail) {
  dir_.Write("src.txt", "new");
  dir_.Write("dst.txt", "old");
  EXPECT_FALSE(platform::CopyFile(Dir() + L"\\src.txt", Dir() + L"\\dst.txt", true));
  EXPECT_EQ(dir_.Read("dst.txt"), "old");
  EXPECT_TRUE(platform::CopyFile(Dir() + L"\\SRC.txt", Dir() + L"\\dst.txt", false));
  EXPECT_EQ(dir_.Read("dst.txt"), "new");
  EXPECT_FALSE(platform::CopyFile(Dir() + L"\\missing", Dir() + L"\\x", false));
  EXPECT_FALSE(platform::CopyFile(Dir() + L"\\sub", Dir() + L"\\x", false)) << "a directory is no file";
}

TEST_F(FilesTest, CreateDirectoryMakesOneLevelOnce) {
  EXPECT_TRUE(platform::CreateDirectory(Dir() + L"\\made"));
  EXPECT_TRUE(platform::DirectoryExists(Dir() + L"\\made"));
  EXPECT_FALSE(platform::CreateDirectory(Dir() + L"\\made"));
  EXPECT_FALSE(platform::CreateDirectory(Dir() + L"\\no\\parent"));
}

TEST_F(FilesTest, DeletePermanentlyRemovesFilesAndTrees) {
  dir_.Write("sub/deep/f", "x");
  EXPECT_TRUE(platform::DeletePermanently(Dir() + L"\\A.PRT"));
  EXPECT_FALSE(fs::exists(dir_.path() / "a.prt"));
  EXPECT_TRUE(platform::DeletePermanently(Dir() + L"\\sub"));
  EXPECT_FALSE(fs::exists(dir_.path() / "sub"));
  EXPECT_FALSE(platform::DeletePermanently(Dir() + L"\\missing"));
}
