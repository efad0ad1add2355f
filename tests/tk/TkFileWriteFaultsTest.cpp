#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "FileFaults.h"
#include "TestDir.h"
#include "TkFile.h"

namespace {

// A stored text, such as a common relation, that a failed overwrite must keep.
class TkFileWriteFaultsTest : public testing::Test {
 protected:
  void SetUp() override { dir_.Write("stored.txt", "d1=10\r\nd2=20\r\n"); }
  void TearDown() override { platform::ClearFileFaults(); }

  void ExpectKept() const {
    EXPECT_EQ(dir_.Read("stored.txt"), "d1=10\r\nd2=20\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.path()),
                            std::filesystem::directory_iterator()),
              1);
  }

  TestDir dir_;
  CTkFile file_;
};

}  // namespace

TEST_F(TkFileWriteFaultsTest, DiskFullHalfWayGivesTheErrorAndKeepsTheOldText) {
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir_.path(), 6});
  EXPECT_EQ(file_.AppendToFile(dir_.Wide("stored.txt"), L"孔径=5\r\n深度=12\r\n"), ENOSPC);
  ExpectKept();
}

// The refused rename's number is 1, which the caller would take for success.
TEST_F(TkFileWriteFaultsTest, RefusedRenameNeverAnswersOne) {
  platform::InjectFileFault({platform::FileFaultKind::kRenameRefused, dir_.path() / "stored.txt"});
  EXPECT_EQ(file_.AppendToFile(dir_.Wide("stored.txt"), L"x"), EACCES);
  ExpectKept();
}
