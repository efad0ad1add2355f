#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "CodePage.h"
#include "ScopedTrash.h"
#include "TestDir.h"
#include "Trash.h"

namespace fs = std::filesystem;

namespace {

class TrashTest : public testing::Test {
 protected:
  TestDir dir_;
  ScopedTrash trash_{dir_};
};

}  // namespace

TEST_F(TrashTest, TrashedFileCanBeRestoredWhereItWas) {
  dir_.Write("work/housing.prt.2", "model");
  std::wstring path = dir_.Wide("work") + L"\\housing.prt.2";
  ASSERT_TRUE(platform::MoveToTrash(path));
  EXPECT_FALSE(fs::exists(dir_.path() / "work" / "housing.prt.2"));
  ASSERT_EQ(trash_.Names(), std::vector<std::string>{"housing.prt.2"});
  EXPECT_EQ(trash_.OriginalPath("housing.prt.2"), dir_.path() / "work" / "housing.prt.2");

  ASSERT_TRUE(trash_.Restore("housing.prt.2"));
  EXPECT_EQ(dir_.Read("work/housing.prt.2"), "model");
}

TEST_F(TrashTest, InfoRecordFollowsTheTrashFormat) {
  dir_.Write("my dir/零件 a.prt", "x");
  ASSERT_TRUE(platform::MoveToTrash(dir_.Wide("my dir") + L"/" + platform::ToWide("零件 a.prt")));
  std::string info = dir_.Read("xdg/Trash/info/零件 a.prt.trashinfo");
  std::regex format(
      "\\[Trash Info\\]\nPath=/[A-Za-z0-9_./~-]*my%20dir/%E9%9B%B6%E4%BB%B6%20a\\.prt\n"
      "DeletionDate=\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\n");
  EXPECT_TRUE(std::regex_match(info, format)) << info;
  EXPECT_EQ(fs::status(trash_.Files()).permissions() & fs::perms::all, fs::perms::owner_all);
}

TEST_F(TrashTest, SameNameTwiceKeepsBoth) {
  for (const char* content : {"first", "second"}) {
    dir_.Write("a.prt", content);
    ASSERT_TRUE(platform::MoveToTrash(dir_.Wide("a.prt")));
  }
  ASSERT_EQ(trash_.Names(), (std::vector<std::string>{"a.prt", "a.prt (2)"}));
  EXPECT_EQ(dir_.Read("xdg/Trash/files/a.prt (2)"), "second");
  EXPECT_EQ(trash_.OriginalPath("a.prt (2)"), dir_.path() / "a.prt");
}

TEST_F(TrashTest, DirectoryGoesWholeAndMissingPathIsRefused) {
  dir_.Write("backup/x.prt.1", "x");
  ASSERT_TRUE(platform::MoveToTrash(dir_.Wide("backup") + L"\\"));
  EXPECT_TRUE(fs::exists(trash_.Files() / "backup" / "x.prt.1"));
  EXPECT_FALSE(platform::MoveToTrash(dir_.Wide("missing")));
  EXPECT_FALSE(platform::MoveToTrash(L""));
  EXPECT_EQ(trash_.Names(), std::vector<std::string>{"backup"});
}

TEST_F(TrashTest, PathIsResolvedWithoutRegardToCase) {
  dir_.Write("Old.PRT.1", "x");
  ASSERT_TRUE(platform::MoveToTrash(dir_.Wide("old.prt.1")));
  EXPECT_EQ(trash_.Names(), std::vector<std::string>{"Old.PRT.1"});
}
