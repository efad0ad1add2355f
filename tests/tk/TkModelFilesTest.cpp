// CTkModel's file operations on real versioned files in a temporary session.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "CallLog.h"
#include "FaultInjection.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "ProMdl.h"
#include "ScopedTrash.h"
#include "TkModel.h"

namespace fs = std::filesystem;

namespace {

std::string Part() { return R"({"type": "part"})"; }
std::string Assembly(const std::string& components) {
  return R"({"type": "assembly", "components": [)" + components + "]}";
}

class TkModelFilesTest : public testing::Test {
 protected:
  void SetUp() override { sim::SetCallLogging(true); }
  ProMdl Open(const std::wstring& fileName) {
    ProMdl mdl = nullptr;
    EXPECT_EQ(model_.LoadMdl(dir_.Wide("work/") + fileName, -1, mdl), PRO_TK_NO_ERROR);
    return mdl;
  }
  void WriteVersions(const std::string& file, int last, const std::string& json) {
    dir_.Write("work/" + file, json);
    for (int i = 1; i <= last; ++i) dir_.Write("work/" + file + "." + std::to_string(i), json);
  }
  bool Exists(const std::string& relative) const { return fs::exists(dir_.path() / relative); }
  int Count(const std::string& callName) const {
    auto log = sim::CallLog();
    return static_cast<int>(
        std::count_if(log.begin(), log.end(), [&](const auto& c) { return c.name == callName; }));
  }
  std::vector<std::wstring> Names(const std::vector<ProMdl>& models) const {
    std::vector<std::wstring> names;
    for (ProMdl mdl : models) names.push_back(model_.GetMdlName(mdl));
    return names;
  }

  TestDir dir_;
  PluginHost host_{dir_};
  ScopedTrash trash_{dir_};
  CTkModel model_;
};

}  // namespace

TEST_F(TkModelFilesTest, DelMdlVersionsKeepsOnlyTheNewestAndSendsTheRestToTheTrash) {
  WriteVersions("housing.prt", 5, Part());
  ProMdl housing = Open(L"housing.prt");
  EXPECT_EQ(model_.GetMdlVersion(housing), 5);
  EXPECT_EQ(model_.DelMdlVersions(housing), 0);
  EXPECT_TRUE(Exists("work/housing.prt.5"));
  for (const char* gone : {"housing.prt", "housing.prt.1", "housing.prt.4"})
    EXPECT_FALSE(Exists(std::string("work/") + gone));
  EXPECT_EQ(trash_.Names(), (std::vector<std::string>{"housing.prt", "housing.prt.1", "housing.prt.2",
                                                      "housing.prt.3", "housing.prt.4"}));
}

TEST_F(TkModelFilesTest, AtVersionOneOnlyTheUnversionedFileGoes) {
  WriteVersions("cover.prt", 1, Part());
  ProMdl cover = Open(L"cover.prt");
  fs::create_directories(dir_.path() / "backup");
  dir_.Write("backup/cover.prt.1", Part());
  model_.DelOldVersionsKeepCurrent(cover, dir_.Wide("backup"));
  EXPECT_TRUE(Exists("backup/cover.prt.1")) << "nothing below version 1";
  model_.DelMdlVersions(cover);
  EXPECT_FALSE(Exists("work/cover.prt"));
  EXPECT_TRUE(Exists("work/cover.prt.1"));
}

TEST_F(TkModelFilesTest, DelMdlVersionsAllLeavesNothingOfTheModel) {
  WriteVersions("tmp.prt", 2, Part());
  ProMdl tmp = Open(L"tmp.prt");
  EXPECT_EQ(model_.DelMdlVersionsAll(tmp), 0);
  EXPECT_EQ(trash_.Names(), (std::vector<std::string>{"tmp.prt", "tmp.prt.1", "tmp.prt.2"}));
}

TEST_F(TkModelFilesTest, AModelWithoutFileHasVersionZeroAndLosesNothing) {
  ProMdl built = host_.AddPart(L"built");
  EXPECT_EQ(model_.GetMdlVersion(built), 0);
  EXPECT_EQ(model_.DelMdlVersions(built), 0);
  EXPECT_EQ(model_.GetMdlVersion(nullptr), 0);
  EXPECT_TRUE(trash_.Names().empty());
}

TEST_F(TkModelFilesTest, SaveMdlAllOfAPartSavesOnceAndClearsTheOlderVersionsUnlessTheSaveFails) {
  WriteVersions("shaft.prt", 2, Part());
  ProMdl shaft = Open(L"shaft.prt");
  sim::FailCall("ProMdlSave", PRO_TK_CANT_WRITE, sim::Times::Once);
  EXPECT_EQ(model_.SaveMdlAll(shaft), PRO_TK_CANT_WRITE);
  EXPECT_TRUE(trash_.Names().empty());
  sim::ClearCallLog();
  EXPECT_EQ(model_.SaveMdlAll(shaft), 0);
  EXPECT_EQ(Count("ProMdlSave"), 1);
  EXPECT_TRUE(Exists("work/shaft.prt.3"));
  EXPECT_EQ(trash_.Names(), (std::vector<std::string>{"shaft.prt", "shaft.prt.1", "shaft.prt.2"}));
}

TEST_F(TkModelFilesTest, SaveMdlAllSavesEachOccurrenceOfAnAssembly) {
  WriteVersions("bolt.prt", 1, Part());
  WriteVersions("sub.asm", 1, Assembly(R"({"id": 3, "model": "bolt.prt"})"));
  WriteVersions("top.asm", 2, Assembly(R"({"id": 1, "model": "bolt.prt"}, {"id": 2, "model": "sub.asm"})"));
  ProMdl top = Open(L"top.asm");
  sim::ClearCallLog();
  EXPECT_EQ(model_.SaveMdlAll(top), 0);
  EXPECT_EQ(Count("ProMdlSave"), 4) << "top, bolt, sub, and bolt again inside sub";
  for (const char* kept : {"top.asm.3", "sub.asm.2", "bolt.prt.3"})
    EXPECT_TRUE(Exists(std::string("work/") + kept));
  for (const char* gone : {"top.asm.2", "sub.asm.1", "bolt.prt.1", "bolt.prt.2"})
    EXPECT_FALSE(Exists(std::string("work/") + gone)) << gone;
}

TEST_F(TkModelFilesTest, BackupWithCleanupKeepsTheCurrentVersionInTheDirectory) {
  WriteVersions("gear.prt", 3, Part());
  ProMdl gear = Open(L"gear.prt");
  fs::create_directories(dir_.path() / "backup");
  dir_.Write("backup/gear.prt.1", Part());
  dir_.Write("backup/gear.prt.2", Part());
  EXPECT_EQ(model_.CopyMdl(gear, dir_.Wide("backup")), 0);
  EXPECT_EQ(model_.DelOldVersionsKeepCurrent(gear, dir_.Wide("backup")), 0);
  EXPECT_TRUE(Exists("backup/gear.prt.3"));
  EXPECT_FALSE(Exists("backup/gear.prt.1"));
  EXPECT_FALSE(Exists("backup/gear.prt.2"));
  EXPECT_TRUE(Exists("work/gear.prt.1")) << "the model's own directory is left alone";
  EXPECT_NE(model_.CopyMdl(gear, dir_.Wide("no-such-dir")), 0);
}

TEST_F(TkModelFilesTest, SubModelsOfAPartAndOfAnAssembly) {
  WriteVersions("bolt.prt", 1, Part());
  WriteVersions("nut.prt", 1, Part());
  WriteVersions(
      "sub.asm", 1,
      Assembly(R"({"id": 3, "model": "bolt.prt"}, {"id": 4, "model": "nut.prt", "suppressed": true})"));
  WriteVersions("top.asm", 1, Assembly(R"({"id": 1, "model": "bolt.prt"}, {"id": 2, "model": "sub.asm"})"));
  std::vector<ProMdl> models{nullptr};
  EXPECT_EQ(model_.GetAllSubMdls(Open(L"nut.prt"), models), 0);
  EXPECT_EQ(Names(models), std::vector<std::wstring>{L"NUT"});
  EXPECT_EQ(model_.GetAllSubMdls(Open(L"top.asm"), models), 0);
  EXPECT_EQ(Names(models), (std::vector<std::wstring>{L"TOP", L"BOLT", L"SUB", L"NUT"}))
      << "each once, suppressed ones too";
}

TEST_F(TkModelFilesTest, SubModelsOfADrawingRepeatWhatItsSolidsShare) {
  WriteVersions("bolt.prt", 1, Part());
  WriteVersions("a.asm", 1, Assembly(R"({"id": 1, "model": "bolt.prt"})"));
  WriteVersions("b.asm", 1, Assembly(R"({"id": 1, "model": "bolt.prt"})"));
  WriteVersions("ab.drw", 1, R"({"type": "drawing", "solids": ["a.asm", "b.asm"]})");
  std::vector<ProMdl> models;
  EXPECT_EQ(model_.GetAllSubMdls(Open(L"ab.drw"), models), 0);
  EXPECT_EQ(Names(models), (std::vector<std::wstring>{L"AB", L"A", L"BOLT", L"B", L"BOLT"}));
  EXPECT_EQ(model_.GetAllSubMdls(nullptr, models), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(models, std::vector<ProMdl>{nullptr}) << "the model itself stands first even then";
}

TEST_F(TkModelFilesTest, SessionModelsComeAssembliesPartsDrawings) {
  host_.AddDrawing(L"d");
  host_.AddPart(L"p1");
  host_.AddAssembly(L"a");
  host_.AddPart(L"p2");
  std::vector<ProMdl> models{nullptr};
  EXPECT_EQ(model_.GetSessionMdls(models), 0);
  EXPECT_EQ(Names(models), (std::vector<std::wstring>{L"A", L"P1", L"P2", L"D"}));
}

TEST_F(TkModelFilesTest, RenameCommonNameAndRegenerationPassTheHostsStatus) {
  ProMdl part = host_.AddPart(L"p");
  host_.AddPart(L"q");
  EXPECT_EQ(model_.RenameMdl(part, L"renamed"), 0);
  EXPECT_EQ(model_.GetMdlName(part), L"RENAMED");
  EXPECT_EQ(model_.RenameMdl(part, L"Q"), PRO_TK_BAD_CONTEXT);
  EXPECT_EQ(model_.SetMdlCommonName(part, L"轴"), 0);
  EXPECT_EQ(model_.GetMdlCommonName(part), L"轴");
  EXPECT_EQ(model_.RegenerateMdl(part), 0);
  EXPECT_EQ(sim::CallLog().back().args, (std::vector<std::string>{"RENAMED", "0"}));
  EXPECT_EQ(model_.RegenerateMdl(host_.AddDrawing(L"d")), PRO_TK_BAD_INPUTS);
}

TEST_F(TkModelFilesTest, UnitSystemsAreCopiedOutAndThePrincipalOneSet) {
  ProMdl part = host_.AddPart(L"p");
  std::vector<ProUnitsystem> systems(3);
  EXPECT_EQ(model_.GetUnitSystems(part, systems), 0);
  ASSERT_FALSE(systems.empty());
  auto ips = std::find_if(systems.begin(), systems.end(), [](const ProUnitsystem& s) {
    return std::wstring(s.name) == L"Inch lbm Second (IPS)";
  });
  ASSERT_NE(ips, systems.end());
  EXPECT_EQ(model_.SetPrincipalUnitSystem(part, *ips, PRO_UNITCONVERT_SAME_SIZE), 0);
  EXPECT_EQ(sim::CallLog().back().args,
            (std::vector<std::string>{"P", "Inch lbm Second (IPS)", "1", "0", "-1"}));
  ProUnitsystem principal{};
  EXPECT_EQ(model_.GetPrincipalUnitSystem(part, principal), 0);
  EXPECT_STREQ(principal.name, L"Inch lbm Second (IPS)");
  EXPECT_EQ(model_.GetUnitSystems(nullptr, systems), 0);
  EXPECT_TRUE(systems.empty());
}
