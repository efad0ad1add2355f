#include <gtest/gtest.h>

#include <map>

#include "FaultInjection.h"
#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "ProToolkitDll.h"
#include "Registration.h"

namespace {

class AccessRulesTest : public testing::Test {
 protected:
  void SetUp() override {
    AutoSaveStarted = 1;  // the timers are not under test here
    user_initialize(0, nullptr, nullptr, nullptr, nullptr);
  }

  std::map<std::string, bool> Availability() {
    std::map<std::string, bool> available;
    for (const auto& command : sim::Commands())
      available[command.name] = sim::Access(command.name) == ACCESS_AVAILABLE;
    return available;
  }

  TestDir dir_;
  PluginHost host_{dir_};
};

const char* kAlways[] = {"CmdBOMSetId",          "CmdBOMSet2Id",          "CmdParamsSetId",
                         "CmdParamsSet2Id",      "CmdMaterialSetId",      "CmdMaterialSet2Id",
                         "CmdIdRelationMenuBtn", "CmdIdRelationMenuBtn2", "CmdModelNameId",
                         "CmdSaveAutoSetId",     "CmdOpenWrkDirId"};

}  // namespace

TEST_F(AccessRulesTest, WithoutModelOnlyTheAlwaysCommandsAreAvailable) {
  host_.MakeCurrent(nullptr);
  auto available = Availability();
  for (const char* name : kAlways) EXPECT_TRUE(available[name]) << name;
  for (const char* name : {"CmdBOMShowId", "CmdBOMShow2Id", "CmdParamMergeId", "CmdModelExportId",
                           "CmdNewDrwId", "CmdBackupMdlId", "CmdDelOldMdlID", "CmdSPLId"})
    EXPECT_FALSE(available[name]) << name;
}

TEST_F(AccessRulesTest, PartOffersMergeAndHousekeepingButNoListExportOrLibrary) {
  host_.MakeCurrent(host_.AddPart(L"SHAFT"));
  auto available = Availability();
  EXPECT_FALSE(available["CmdBOMShowId"]);
  EXPECT_TRUE(available["CmdParamMergeId"]);
  EXPECT_TRUE(available["CmdNewDrwId"]);
  EXPECT_TRUE(available["CmdBackupMdlId"]);
  EXPECT_FALSE(available["CmdModelExportId"]);
  EXPECT_FALSE(available["CmdSPLId"]);
}

TEST_F(AccessRulesTest, DrawingOffersTheListButNoHousekeeping) {
  host_.MakeCurrent(host_.AddDrawing(L"REDUCER"));
  auto available = Availability();
  EXPECT_TRUE(available["CmdBOMShowId"]);
  EXPECT_TRUE(available["CmdBOMShow2Id"]);
  EXPECT_TRUE(available["CmdParamMergeId"]);
  EXPECT_FALSE(available["CmdNewDrwId"]);
  EXPECT_FALSE(available["CmdBackupMdlId"]);
  EXPECT_FALSE(available["CmdDelOldMdlID"]);
  EXPECT_FALSE(available["CmdModelExportId"]);
}

TEST_F(AccessRulesTest, AssemblyOffersEverything) {
  host_.MakeCurrent(host_.AddAssembly(L"REDUCER"));
  for (const auto& [name, available] : Availability()) EXPECT_TRUE(available) << name;
}

TEST_F(AccessRulesTest, FailingHostCallMakesACommandUnavailableButNotAnAlwaysCommand) {
  host_.MakeCurrent(host_.AddAssembly(L"REDUCER"));
  sim::FailCall("ProMdlTypeGet", PRO_TK_GENERAL_ERROR, sim::Times::Always);
  auto available = Availability();
  EXPECT_FALSE(available["CmdBOMShowId"]);
  EXPECT_FALSE(available["CmdSPLId"]);
  EXPECT_TRUE(available["CmdParamMergeId"]) << "any model will do, its type is not asked";
  sim::FailCall("ProMdlCurrentGet", PRO_TK_GENERAL_ERROR, sim::Times::Always);
  available = Availability();
  EXPECT_FALSE(available["CmdParamMergeId"]);
  for (const char* name : kAlways) EXPECT_TRUE(available[name]) << name;
}
