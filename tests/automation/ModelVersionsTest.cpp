#include "ModelVersions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "CallLog.h"
#include "HostControl.h"
#include "Inspection.h"
#include "NewDrawing.h"
#include "PluginHost.h"
#include "RecordedPrompts.h"
#include "ScopedTrash.h"
#include "SessionFiles.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kPart = R"({"type": "part"})";

// An assembly of a nut without a drawing and a bolt with one, listed in
// that order, each with older version files beside the newest.
class ModelVersionsTest : public testing::Test {
 protected:
  void SetUp() override {
    sim::SetCallLogging(true);
    LoadVersions(dir_, "nut.prt", kPart, 2);
    LoadVersions(dir_, "bolt.prt", kPart, 3);
    top_ = LoadVersions(dir_, "top.asm",
                        R"({"type": "assembly", "components": [{"id": 1, "model": "nut.prt"},)"
                        R"( {"id": 2, "model": "bolt.prt"}]})",
                        2);
    for (int i = 1; i <= 2; ++i)
      dir_.Write("work/bolt.drw." + std::to_string(i), R"({"type": "drawing", "solids": ["bolt.prt"]})");
    host_.MakeCurrent(top_);
  }
  bool InWork(const std::string& file) const { return fs::exists(dir_.path() / "work" / file); }
  bool InBackup(const std::string& file) const { return fs::exists(dir_.path() / "backup" / file); }
  int Calls(const std::string& name) const {
    auto log = sim::CallLog();
    return static_cast<int>(
        std::count_if(log.begin(), log.end(), [&](const auto& c) { return c.name == name; }));
  }

  TestDir dir_;
  PluginHost host_{dir_};
  ScopedTrash trash_{dir_};
  RecordedPrompts prompts_;
  ProMdl top_ = nullptr;
};

}  // namespace

TEST_F(ModelVersionsTest, CleanupKeepsTheNewestOfEachModelAndDrawingAndSkipsOnlyAMissingDrawing) {
  EXPECT_EQ(DelOldMdl(), 0);
  EXPECT_EQ(trash_.Names(),
            (std::vector<std::string>{"bolt.drw.1", "bolt.prt.1", "bolt.prt.2", "nut.prt.1", "top.asm.1"}));
  for (const char* kept : {"top.asm.2", "nut.prt.2", "bolt.prt.3", "bolt.drw.2"})
    EXPECT_TRUE(InWork(kept)) << kept;
  EXPECT_TRUE(prompts_.prompts.empty());
}

TEST_F(ModelVersionsTest, ATrashedVersionIsRestoredToWhereItLay) {
  DelOldMdl();
  ASSERT_FALSE(InWork("bolt.prt.2"));
  EXPECT_EQ(trash_.OriginalPath("bolt.prt.2"), dir_.path() / "work" / "bolt.prt.2");
  ASSERT_TRUE(trash_.Restore("bolt.prt.2"));
  EXPECT_TRUE(InWork("bolt.prt.2"));
  EXPECT_EQ(dir_.Read("work/bolt.prt.2"), kPart);
}

TEST_F(ModelVersionsTest, CleanupWithoutCurrentModelDeletesNothing) {
  sim::SetCurrentModel(nullptr);
  EXPECT_NE(DelOldMdl(), 0);
  EXPECT_TRUE(trash_.Names().empty());
}

TEST_F(ModelVersionsTest, BackupCancelledInTheChooserWritesNothing) {
  sim::PushAnswer("ProDirectoryChoose", std::nullopt);
  EXPECT_EQ(BackupMdl(), -4);
  EXPECT_EQ(Calls("ProMdlnameBackup"), 0);
  EXPECT_TRUE(trash_.Names().empty());
}

TEST_F(ModelVersionsTest, BackupLeavesOnlyTheNewestCopyOfAModelWithADrawing) {
  for (const char* old : {"nut.prt.1", "bolt.prt.1", "bolt.prt.2"})
    dir_.Write(std::string("backup/") + old, kPart);
  sim::PushAnswer("ProDirectoryChoose", dir_.Wide("backup"));
  EXPECT_EQ(BackupMdl(), 0);
  for (const char* copy : {"top.asm.2", "nut.prt.2", "bolt.prt.3", "bolt.drw.2"})
    EXPECT_TRUE(InBackup(copy)) << copy;
  EXPECT_TRUE(InBackup("nut.prt.1")) << "without a drawing every copy stays";
  EXPECT_FALSE(InBackup("bolt.prt.1"));
  EXPECT_FALSE(InBackup("bolt.prt.2"));
  EXPECT_EQ(trash_.Names(), (std::vector<std::string>{"bolt.prt.1", "bolt.prt.2"}));
  for (const char* source : {"top.asm.1", "bolt.prt.1", "bolt.drw.1"}) EXPECT_TRUE(InWork(source)) << source;
  EXPECT_TRUE(prompts_.prompts.empty());
}

TEST_F(ModelVersionsTest, NewDrawingLoadsTheMacroOfTheCurrentModelsName) {
  EXPECT_EQ(NewDrawing(), 0);
  EXPECT_EQ(sim::Macros(), (std::vector<std::wstring>{
                               L"~ Command `ProCmdModelNew` ;~ Select `new` `Type`1  `Drawing`;~ Input `new` "
                               L"`InputPanel1` `TOP`;~ Update `new` `InputPanel1` `TOP`;"}));
}

TEST_F(ModelVersionsTest, NewDrawingWithoutCurrentModelDoesNothing) {
  sim::SetCurrentModel(nullptr);
  EXPECT_EQ(NewDrawing(), 0);
  EXPECT_TRUE(sim::Macros().empty());
}
