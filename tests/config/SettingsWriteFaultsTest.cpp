#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "CfgOption.h"
#include "CodePage.h"
#include "ConfigTestSupport.h"
#include "FileFaults.h"
#include "IniReader.h"
#include "SmallFileSystem.h"

namespace fs = std::filesystem;

namespace {

const std::string kColumns = "[Columns]\n1=序号\n2=名称\n3=数量\n";

// A column table on disk whose rewrite the disk or the system refuses.
class SettingsWriteFaultsTest : public TextRootTest {
 protected:
  SettingsWriteFaultsTest() {
    dir.Write("config/Tbl.cfg", kColumns);
    reader.SetIniFile(dir.Wide("config/Tbl.cfg"));
  }
  ~SettingsWriteFaultsTest() override { platform::ClearFileFaults(); }

  void ExpectTableKept() const {
    EXPECT_EQ(dir.Read("config/Tbl.cfg"), kColumns);
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path() / "config"), fs::directory_iterator()), 1);
  }

  CIniReader reader;
};

}  // namespace

TEST_F(SettingsWriteFaultsTest, DiskFullHalfWayAnswersZeroAndKeepsTheTable) {
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir.path() / "config", kColumns.size() / 2});
  EXPECT_EQ(reader.SetKey(L"重量", L"4", L"Columns"), 0);
  ExpectTableKept();
  EXPECT_EQ(reader.GetKeyValue(L"3", L"Columns"), L"数量");
}

TEST_F(SettingsWriteFaultsTest, ReadOnlyFileIsNotRewritten) {
  fs::permissions(dir.path() / "config" / "Tbl.cfg",
                  fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
  EXPECT_EQ(reader.SetKey(L"重量", L"4", L"Columns"), 0);
  ExpectTableKept();
}

// An accessor ignores the failed write, as the settings layer shows nothing;
// the file keeps the choice it had.
TEST_F(SettingsWriteFaultsTest, AccessorWriteOnAFullDiskLeavesTheOldChoice) {
  const std::string opt = "[BOM]\nExportExcel=1\nExportText=0\n";
  dir.Write("config/Opt.cfg", opt);
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, {}, 3});
  CCfgOption option;
  option.SetExportExcel(0);
  EXPECT_EQ(dir.Read("config/Opt.cfg"), opt);
  EXPECT_EQ(option.GetExportExcel(), 1);
}

// On a disk that is really full, a key that makes the column table grow past
// what the disk still holds: the table stays whole.
TEST(SettingsOnAFullDisk, AKeyThatNoLongerFitsLeavesTheTableWhole) {
  TestDir dir;
  SmallFileSystem small(dir, 64);
  if (!small.mounted()) GTEST_SKIP() << small.refusal();
  // Two pages of the file system, all but filled.
  std::string table = "[Columns]\n";
  for (int column = 10; table.size() < 8000; ++column)
    table += std::to_string(column) + "=" + std::string(60, 'c') + "\n";
  table += std::string(8190 - table.size() - 1, ';') + "\n";
  const fs::path file = small.path() / "Tbl.cfg";
  { std::ofstream(file, std::ios::binary) << table; }
  small.Fill(0);

  CIniReader reader;
  reader.SetIniFile(platform::ToWide(file.string()));
  EXPECT_EQ(reader.SetKey(L"重量", L"99", L"Columns"), 0);
  std::ifstream in(file, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), table);
}
