#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "AutoSave.h"
#include "AutomationTimers.h"
#include "CallLog.h"
#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "ProMdl.h"
#include "ScopedTrash.h"
#include "SessionFiles.h"
#include "Timers.h"

namespace fs = std::filesystem;

namespace {

void Idle(void*, unsigned, std::uintptr_t, unsigned long) {}

class AutoSaveTest : public testing::Test {
 protected:
  void SetUp() override {
    sim::SetCallLogging(true);
    // The system numbers window-less timers one after the other: the next
    // timer started gets the id after this probe's.
    std::uintptr_t probe = platform::SetTimer(nullptr, 0, 1000, Idle);
    platform::KillTimer(nullptr, probe);
    nextTimerId_ = probe + 1;
  }
  void TearDown() override {
    for (std::uintptr_t id = nextTimerId_; id < nextTimerId_ + 4; ++id) platform::KillTimer(nullptr, id);
  }

  void GivenSettings(const std::string& dlgSetLines) {
    dir_.Write("app/config/SaveAuto.cfg", "[DlgSet]\n" + dlgSetLines + "\n[WrkDir]\nIsSaveWrkDir=0\n");
  }
  ProMdl Load(const std::string& file, const std::string& json, int versions) {
    return LoadVersions(dir_, file, json, versions);
  }
  void Tick() { AutoSaveTick(nullptr, 0x0113, nextTimerId_, 0); }
  int Saves() const {
    auto log = sim::CallLog();
    return static_cast<int>(
        std::count_if(log.begin(), log.end(), [](const auto& c) { return c.name == "ProMdlSave"; }));
  }
  bool Exists(const std::string& file) const { return fs::exists(dir_.path() / "work" / file); }
  void Change(ProMdl mdl) {
    wchar_t name[] = L"改过";
    ASSERT_EQ(ProMdlCommonnameSet(mdl, name), PRO_TK_NO_ERROR);
  }

  TestDir dir_;
  PluginHost host_{dir_};
  ScopedTrash trash_{dir_};
  std::uintptr_t nextTimerId_ = 0;
};

}  // namespace

TEST_F(AutoSaveTest, TimerRunsEveryTimeMinutesAndAtLeastEveryMinute) {
  for (auto [time, period] :
       {std::pair{"Time=5", 300000u}, {"Time=0", 60000u}, {"Time=-3", 60000u}, {"Time=", 600000u}}) {
    GivenSettings(std::string("SaveAuto=1\n") + time);
    StartAutoSaveTimer();
    platform::TimerInfo info{};
    ASSERT_TRUE(platform::FindTimer(nextTimerId_, &info)) << time;
    EXPECT_EQ(info.elapseMs, period) << time;
    EXPECT_EQ(info.proc, &AutoSaveTick);
    platform::KillTimer(nullptr, nextTimerId_++);
  }
}

TEST_F(AutoSaveTest, OnlyTheTextOneSwitchesItOn) {
  for (const char* saveAuto : {"SaveAuto=2", "SaveAuto=", "DelOldVer=1"}) {
    GivenSettings(saveAuto);
    size_t before = platform::ActiveTimers().size();
    StartAutoSaveTimer();
    EXPECT_EQ(platform::ActiveTimers().size(), before) << saveAuto;
  }
}

TEST_F(AutoSaveTest, AutomationTimersStartTheSaveTimerBesideTheWorkDirectoryOne) {
  GivenSettings("SaveAuto=1\nTime=2");
  StartAutomationTimers();
  platform::TimerInfo info{};
  ASSERT_TRUE(platform::FindTimer(nextTimerId_, &info));
  EXPECT_EQ(info.proc, &AutoSaveTick);
  ASSERT_TRUE(platform::FindTimer(nextTimerId_ + 1, &info));
  EXPECT_EQ(info.elapseMs, 2000u);
}

TEST_F(AutoSaveTest, NoCurrentModelMeansNothingAndTheTimerGoesOn) {
  GivenSettings("SaveAuto=1\nTime=1");
  StartAutoSaveTimer();
  auto start = platform::TimerClock::now();
  EXPECT_EQ(platform::RunDueTimers(start + std::chrono::seconds(61)), 1);
  EXPECT_EQ(platform::RunDueTimers(start + std::chrono::seconds(122)), 1);
  EXPECT_EQ(Saves(), 0);
}

TEST_F(AutoSaveTest, AnUnchangedModelMakesNoNewVersion) {
  GivenSettings("SaveAuto=1\nDelOldVer=1");
  host_.MakeCurrent(Load("shaft.prt", R"({"type": "part"})", 2));
  Tick();
  EXPECT_EQ(Saves(), 0);
  EXPECT_FALSE(Exists("shaft.prt.3"));
}

TEST_F(AutoSaveTest, AChangedModelIsSavedAloneWithoutOldVersionCleanup) {
  GivenSettings("SaveAuto=1\nDelOldVer=0");
  ProMdl shaft = Load("shaft.prt", R"({"type": "part"})", 2);
  host_.MakeCurrent(shaft);
  Change(shaft);
  Tick();
  EXPECT_TRUE(Exists("shaft.prt.3"));
  EXPECT_EQ(sim::Messages().currentLine, L"SHAFT.PRT has been saved.") << "the save is seen";
  EXPECT_TRUE(Exists("shaft.prt.1"));
  EXPECT_TRUE(trash_.Names().empty());
  Tick();
  EXPECT_FALSE(Exists("shaft.prt.4")) << "saved means unchanged";
}

TEST_F(AutoSaveTest, AChangedComponentSavesTheAssemblyAndAllItsComponentsWithCleanup) {
  GivenSettings("SaveAuto=1\nDelOldVer=7");
  ProMdl bolt = Load("bolt.prt", R"({"type": "part"})", 2);
  ProMdl top = Load("top.asm", R"({"type": "assembly", "components": [{"id": 1, "model": "bolt.prt"}]})", 1);
  host_.MakeCurrent(top);
  Change(bolt);
  Tick();
  EXPECT_TRUE(Exists("top.asm.2"));
  EXPECT_TRUE(Exists("bolt.prt.3"));
  EXPECT_EQ(trash_.Names(), (std::vector<std::string>{"bolt.prt.1", "bolt.prt.2", "top.asm.1"}));
}

TEST_F(AutoSaveTest, ADrawingCountsTheModelsItShows) {
  GivenSettings("SaveAuto=1\nDelOldVer=0");
  ProMdl shaft = Load("shaft.prt", R"({"type": "part"})", 1);
  ProMdl drawing = Load("shaft.drw", R"({"type": "drawing", "solids": ["shaft.prt"]})", 1);
  host_.MakeCurrent(drawing);
  Tick();
  EXPECT_EQ(Saves(), 0);
  Change(shaft);
  Tick();
  EXPECT_TRUE(Exists("shaft.drw.2")) << "the drawing is what is saved";
  EXPECT_FALSE(Exists("shaft.prt.2"));
}
