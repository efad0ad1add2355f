#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "FileFaults.h"
#include "FileWrite.h"
#include "Files.h"
#include "SmallFileSystem.h"
#include "TestDir.h"

namespace fs = std::filesystem;

namespace {

const std::string kOld = "[BOM]\nLevelType=1\n";
const std::string kNew(4096, 'n');

std::set<std::string> Names(const fs::path& dir) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(dir)) names.insert(entry.path().filename().string());
  return names;
}

class FileWriteTest : public testing::Test {
 protected:
  void SetUp() override { dir_.Write("Opt.cfg", kOld); }
  void TearDown() override { platform::ClearFileFaults(); }

  fs::path Target() const { return dir_.path() / "Opt.cfg"; }
  // The old bytes are there, and nothing else is in the directory.
  void ExpectUntouched() const {
    EXPECT_EQ(dir_.Read("Opt.cfg"), kOld);
    EXPECT_EQ(Names(dir_.path()), std::set<std::string>{"Opt.cfg"});
  }

  TestDir dir_;
};

}  // namespace

TEST_F(FileWriteTest, ReplacesTheContentAndKeepsThePermissions) {
  fs::permissions(Target(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_FALSE(platform::WriteFileAtomically(Target(), kNew));
  EXPECT_EQ(dir_.Read("Opt.cfg"), kNew);
  EXPECT_EQ(fs::status(Target()).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_EQ(Names(dir_.path()), std::set<std::string>{"Opt.cfg"});
}

TEST_F(FileWriteTest, CreatesAMissingFileThroughAPluginPath) {
  std::wstring path = dir_.Wide() + L"\\\\new.txt";
  EXPECT_FALSE(platform::WriteFileAtomically(path, "text"));
  EXPECT_EQ(dir_.Read("new.txt"), "text");
  EXPECT_EQ(platform::WriteFileAtomically(dir_.Wide() + L"\\missing\\x.txt", "x"),
            std::errc::no_such_file_or_directory);
  EXPECT_FALSE(fs::exists(dir_.path() / "missing"));
}

TEST_F(FileWriteTest, WritesThroughASymbolicLink) {
  fs::create_symlink("Opt.cfg", dir_.path() / "link.cfg");
  EXPECT_FALSE(platform::WriteFileAtomically(dir_.path() / "link.cfg", kNew));
  EXPECT_TRUE(fs::is_symlink(dir_.path() / "link.cfg"));
  EXPECT_EQ(dir_.Read("Opt.cfg"), kNew);
}

// As on the plug-in's home system, a read-only file is not replaced, also
// not by a process that may write anything (tests may run as root).
TEST_F(FileWriteTest, ReadOnlyTargetOrADirectoryIsRefused) {
  fs::permissions(Target(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  EXPECT_EQ(platform::WriteFileAtomically(Target(), kNew), std::errc::permission_denied);
  ExpectUntouched();
  fs::create_directory(dir_.path() / "sub");
  EXPECT_EQ(platform::WriteFileAtomically(dir_.path() / "sub", kNew), std::errc::is_a_directory);
  EXPECT_TRUE(fs::is_directory(dir_.path() / "sub"));
}

TEST_F(FileWriteTest, DiskFullHalfWayKeepsTheOldBytesAndLeavesNoPartialFile) {
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, Target(), kNew.size() / 2});
  EXPECT_EQ(platform::WriteFileAtomically(Target(), kNew), std::errc::no_space_on_device);
  ExpectUntouched();
}

TEST_F(FileWriteTest, EachInjectedFaultFailsTheWriteAndLeavesTheOldFile) {
  struct Case {
    platform::FileFaultKind kind;
    std::errc expected;
  };
  for (Case c : {Case{platform::FileFaultKind::kReadOnlyDirectory, std::errc::permission_denied},
                 Case{platform::FileFaultKind::kHeldOpen, std::errc::device_or_resource_busy},
                 Case{platform::FileFaultKind::kRenameRefused, std::errc::operation_not_permitted}}) {
    SCOPED_TRACE(static_cast<int>(c.kind));
    platform::InjectFileFault({c.kind, dir_.path()});
    EXPECT_EQ(platform::WriteFileAtomically(Target(), kNew), c.expected);
    ExpectUntouched();
    // CopyFile replaces its target through the same writer.
    dir_.Write("other/src.txt", kNew);
    EXPECT_FALSE(platform::CopyFile(dir_.Wide("other/src.txt"), dir_.Wide("Opt.cfg"), false));
    fs::remove_all(dir_.path() / "other");
    ExpectUntouched();
    platform::ClearFileFaults();
  }
}

TEST_F(FileWriteTest, AFaultElsewhereOrClearedLeavesTheWriteAlone) {
  platform::InjectFileFault({platform::FileFaultKind::kHeldOpen, dir_.path() / "elsewhere"});
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir_.path() / "Tbl.cfg", 1});
  EXPECT_FALSE(platform::WriteFileAtomically(Target(), kNew));
  EXPECT_EQ(dir_.Read("Opt.cfg"), kNew);

  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, {}, 0});
  EXPECT_EQ(platform::WriteFileAtomically(Target(), kOld), std::errc::no_space_on_device);
  platform::ClearFileFaults();
  EXPECT_FALSE(platform::WriteFileAtomically(Target(), kOld));
  ExpectUntouched();
}

TEST(RealFullFileSystem, AWriteThatFillsTheDiskKeepsTheOldFile) {
  TestDir dir;
  SmallFileSystem small(dir, 64);
  if (!small.mounted()) GTEST_SKIP() << small.refusal();
  const fs::path target = small.path() / "Tbl.cfg";
  ASSERT_FALSE(platform::WriteFileAtomically(target, kOld));
  small.Fill(16 * 1024);

  EXPECT_EQ(platform::WriteFileAtomically(target, std::string(48 * 1024, 'b')),
            std::errc::no_space_on_device);
  std::ifstream in(target, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), kOld);
  EXPECT_EQ(Names(small.path()), (std::set<std::string>{"Tbl.cfg", "filler"}));
}
