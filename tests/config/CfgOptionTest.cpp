#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "CfgOption.h"
#include "ConfigTestSupport.h"
#include "IniEx.h"

namespace {

class CfgOptionTest : public TextRootTest {
 protected:
  void GivenSaveAuto(const std::string& dlgSetLines) {
    dir.Write("config/SaveAuto.cfg", "[DlgSet]\n" + dlgSetLines + "\n[WrkDir]\nIsSaveWrkDir=1\n");
  }
};

// Every other file's name is read from disk by the tests of its settings.
TEST(CfgOptionPaths, FilesLieInConfigUnderTheTextRootAndGetAppDirOnesDoubleTheBackslash) {
  protkrt::SetApplTextPath(L"C:\\plugin");
  CCfgOption option;
  using PathFunction = std::wstring (CCfgOption::*)() const;
  const std::vector<std::pair<PathFunction, std::wstring>> expected = {
      {&CCfgOption::GetOptCfgPath, L"C:\\plugin\\config\\Opt.cfg"},
      {&CCfgOption::GetBomFilterCfgPath, L"C:\\plugin\\\\config\\BomFilter.cfg"},
      {&CCfgOption::GetMdlExportCfgPath, L"C:\\plugin\\\\config\\MdlExport.cfg"},
      {&CCfgOption::GetMdlExportColCfgPath, L"C:\\plugin\\\\config\\MdlExportCol.cfg"},
  };
  for (const auto& [function, path] : expected) EXPECT_EQ((option.*function)(), path);
  protkrt::SetApplTextPath(L"");
  EXPECT_EQ(option.GetSaveAutoCfgPath(), L"\\config\\SaveAuto.cfg");
}

TEST_F(CfgOptionTest, DoubledBackslashPathReachesTheFile) {
  dir.Write("config/BomFilter.cfg", "[Filter]\nName=a\n");
  std::wstring value;
  CIniEx().GetValue(CCfgOption().GetBomFilterCfgPath(), L"Filter", L"Name", value);
  EXPECT_EQ(value, L"a");
}

TEST_F(CfgOptionTest, SaveAutoTimeIsTenOnlyWhenEmpty) {
  for (auto [lines, time] : {std::pair{"Time=0", 0}, {"Time=-5", -5}, {"Time=", 10}, {"SaveAuto=1", 10}}) {
    GivenSaveAuto(lines);
    EXPECT_EQ(CCfgOption().GetSaveAutoTime(), time) << lines;
  }
}

TEST_F(CfgOptionTest, SaveAutoIsOnOnlyForOneWhileDelOldVerTakesAnyNumber) {
  GivenSaveAuto("SaveAuto=2\nDelOldVer=2");
  CCfgOption option;
  EXPECT_EQ(option.GetSaveAuto(), 0);
  EXPECT_EQ(option.GetDelOldVer(), 2);
  GivenSaveAuto("SaveAuto=1\nDelOldVer=x");
  EXPECT_EQ(option.GetSaveAuto(), 1);
  EXPECT_EQ(option.GetDelOldVer(), 0);
}

TEST_F(CfgOptionTest, SettersWriteWhatGettersRead) {
  GivenSaveAuto("SaveAuto=0");
  CCfgOption option;
  option.SetSaveAuto(1);
  option.SetDelOldVer(3);
  option.SetSaveAutoTime(7);
  option.SetWrkDir(L"/work/my dir");
  EXPECT_EQ(option.GetSaveAuto(), 1);
  EXPECT_EQ(option.GetDelOldVer(), 3);
  EXPECT_EQ(option.GetSaveAutoTime(), 7);
  EXPECT_EQ(option.GetIsSaveWrkDir(), 1);
  EXPECT_EQ(option.GetWrkDir(), L"/work/my dir");
  EXPECT_EQ(dir.Read("config/SaveAuto.cfg"),
            "[DlgSet]\nSaveAuto=1\nDelOldVer=3\nTime=7\n[WrkDir]\nIsSaveWrkDir=1\nDir=/work/my\xE2\x96\xA1"
            "dir\n");
}

TEST_F(CfgOptionTest, MissingFileGivesDefaultsAndSettersLeaveItMissing) {
  CCfgOption option;
  option.SetSaveAuto(1);
  option.SetWrkDir(L"/w");
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "config"));
  EXPECT_EQ(option.GetSaveAuto(), 0);
  EXPECT_EQ(option.GetSaveAutoTime(), 10);
  EXPECT_EQ(option.GetIsSaveWrkDir(), 0);
  EXPECT_EQ(option.GetWrkDir(), L"");
  EXPECT_EQ(option.GetMenubarId(), L"");
}

TEST_F(CfgOptionTest, MenuPlacementIsReadFromTheOptPathTakenAtConstruction) {
  dir.Write("config/Opt.cfg", "[Menu]\nMenubarId=Tools\nFrontMenuBtn=\n");
  CCfgOption option;
  protkrt::SetApplTextPath(dir.Wide("elsewhere"));
  EXPECT_EQ(option.GetMenubarId(), L"Tools");
  EXPECT_EQ(option.GetFrontMenuBtn(), L"");
}

}  // namespace
