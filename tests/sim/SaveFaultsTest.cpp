// A save the disk or the system refuses: the host's promise that the
// versions on disk stay as they were.
#include "FileFaults.h"
#include "Inspection.h"
#include "ProMdl.h"
#include "SimTest.h"

#include <filesystem>
#include <set>

namespace fs = std::filesystem;

namespace {

class SimSaveFaults : public SimTest {
 protected:
  SimSaveFaults() {
    dir.Write("work/shaft.prt.2", kSaved);
    shaft = Load(L"shaft.prt");
    wchar_t common[] = L"主轴";
    EXPECT_EQ(ProMdlCommonnameSet(shaft, common), PRO_TK_NO_ERROR);
  }
  ~SimSaveFaults() override { platform::ClearFileFaults(); }

  // The previous version intact, no new version and no partial file.
  void ExpectOnlyTheOldVersion() const {
    EXPECT_EQ(dir.Read("work/shaft.prt.2"), kSaved);
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(dir.path() / "work")) {
      if (entry.path().filename().string().find("shaft") != std::string::npos) {
        names.insert(entry.path().filename().string());
      }
    }
    EXPECT_EQ(names, std::set<std::string>{"shaft.prt.2"});
    EXPECT_EQ(Origin(shaft), dir.Wide("work/shaft.prt.2"));
  }

  const std::string kSaved = ModelJson("part", R"("relations": ["d1=2"])");
  ProMdl shaft = nullptr;
};

}  // namespace

// Only a save that happened is told in the message area.
TEST_F(SimSaveFaults, DiskFullHalfWayCannotWriteAndKeepsThePreviousVersion) {
  platform::InjectFileFault({platform::FileFaultKind::kDiskFull, dir.path() / "work", kSaved.size() / 2});
  EXPECT_EQ(ProMdlSave(shaft), PRO_TK_CANT_WRITE);
  ExpectOnlyTheOldVersion();
  ProBoolean modified = PRO_B_FALSE;
  ASSERT_EQ(ProMdlModificationVerify(shaft, &modified), PRO_TK_NO_ERROR);
  EXPECT_EQ(modified, PRO_B_TRUE) << "the change is still unsaved";
  EXPECT_TRUE(sim::Messages().lines.empty());

  platform::ClearFileFaults();
  ASSERT_EQ(ProMdlSave(shaft), PRO_TK_NO_ERROR);
  EXPECT_EQ(Origin(shaft), dir.Wide("work/shaft.prt.3"));
  EXPECT_EQ(sim::Messages().lines, std::vector<std::wstring>{L"SHAFT.PRT has been saved."});
  EXPECT_EQ(dir.Read("work/shaft.prt.2"), kSaved);
}
