#include <gtest/gtest.h>

#include "CallLog.h"
#include "FaultInjection.h"
#include "HostControl.h"
#include "Inspection.h"
#include "PluginHost.h"
#include "TkModel.h"

namespace {

class TkModelTest : public testing::Test {
 protected:
  ProMdl Load(const std::string& relative) {
    ProMdl mdl = nullptr;
    EXPECT_EQ(model_.LoadMdl(dir_.Wide(relative), -1, mdl), PRO_TK_NO_ERROR) << relative;
    return mdl;
  }

  TestDir dir_;
  PluginHost host_{dir_};
  CTkModel model_;
};

}  // namespace

TEST_F(TkModelTest, NamesTypesAndCommonNameComeFromTheHost) {
  dir_.Write("m/bolt_m8.prt.2", R"({"type": "part", "commonName": "六角头螺栓 M8x30"})");
  ProMdl bolt = Load("m/bolt_m8.prt.2");
  EXPECT_EQ(model_.GetMdlName(bolt), L"BOLT_M8");
  EXPECT_EQ(model_.GetMdlCommonName(bolt), L"六角头螺栓 M8x30");
  int type = 0;
  EXPECT_EQ(model_.GetMdlType(bolt, type), PRO_TK_NO_ERROR);
  EXPECT_EQ(type, CTkModel::kPart);

  host_.MakeCurrent(bolt);
  EXPECT_EQ(model_.GetCurMdlName(), L"BOLT_M8");
  EXPECT_EQ(model_.GetCurMdlType(type), PRO_TK_NO_ERROR);
  host_.MakeCurrent(nullptr);
  EXPECT_EQ(model_.GetCurMdlName(), L"");
  EXPECT_NE(model_.GetCurMdlType(type), PRO_TK_NO_ERROR);
}

TEST_F(TkModelTest, NullOrForgottenModelHasNoName) {
  EXPECT_EQ(model_.GetMdlName(nullptr), L"");
  ProMdl part = host_.AddPart(L"GONE");
  sim::StartHost({host_.WorkDir()});  // the host forgets its session
  EXPECT_EQ(model_.GetMdlName(part), L"");
  EXPECT_EQ(model_.GetMdlCommonName(part), L"");
}

TEST_F(TkModelTest, OriginPathLosesTheVersionButKeepsAnUnversionedName) {
  dir_.Write("w/a.prt.12", R"({"type": "part"})");
  dir_.Write("v/b.prt", R"({"type": "part"})");
  ProMdl a = Load("w/a.prt.12");
  ProMdl b = Load("v/b.prt");
  EXPECT_EQ(model_.GetMdlOriginPath(a, 1), dir_.Wide("w/a.prt.12"));
  EXPECT_EQ(model_.GetMdlOriginPath(a, 0), dir_.Wide("w/a.prt"));
  EXPECT_EQ(model_.GetMdlOriginPath(b, 0), dir_.Wide("v/b.prt"));
  EXPECT_EQ(model_.GetMdlOriginDir(a), dir_.Wide("w/"));
}

TEST_F(TkModelTest, DottedDirectoryCostsAnUnversionedFileItsExtension) {
  dir_.Write("w.x/a.prt", R"({"type": "part"})");
  ProMdl a = Load("w.x/a.prt");
  EXPECT_EQ(model_.GetMdlOriginPath(a, 0), dir_.Wide("w.x/a"));
  EXPECT_EQ(model_.GetMdlOriginPath(nullptr, 0), L"");
}

TEST_F(TkModelTest, SameModelMeansSameTypeAndNameInAnyCase) {
  sim::ModelDef part;
  part.name = L"BOLT";
  ProMdl upper = sim::AddModel(L"bolt.prt", part);
  part.name = L"bolt";
  ProMdl lower = sim::AddModel(L"bolt2.prt", part);
  sim::ModelDef assembly;
  assembly.type = PRO_MDL_ASSEMBLY;
  assembly.name = L"BOLT";
  ProMdl asmX = sim::AddModel(L"bolt.asm", assembly);
  EXPECT_EQ(model_.IsSameMdl(upper, lower), 1);
  EXPECT_EQ(model_.IsSameMdl(upper, asmX), 0);
  EXPECT_EQ(model_.IsSameMdl(upper, nullptr), 0);
}

TEST_F(TkModelTest, ComponentPathsCompareOnlyTheIdsInUse) {
  ProAsmcomppath a{reinterpret_cast<ProSolid>(&a), {1, 2, 99}, 2};
  ProAsmcomppath b{reinterpret_cast<ProSolid>(&a), {1, 2, -1}, 2};
  int same = -1;
  EXPECT_EQ(model_.IsSameCmpPath(a, b, same), 0);
  EXPECT_EQ(same, 1);
  b.comp_id_table[1] = 3;
  model_.IsSameCmpPath(a, b, same);
  EXPECT_EQ(same, 0);
  b = a;
  b.owner = nullptr;
  EXPECT_EQ(model_.IsSameCmpPath(a, b, same), 0);
  EXPECT_EQ(same, 0);
}

TEST_F(TkModelTest, LoadingNothingFailsAndLeavesNoModel) {
  ProMdl mdl = reinterpret_cast<ProMdl>(&mdl);
  EXPECT_EQ(model_.LoadMdl(L"", -1, mdl), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(mdl, nullptr);
  EXPECT_NE(model_.LoadMdl(dir_.Wide("missing.prt"), -1, mdl), PRO_TK_NO_ERROR);
  EXPECT_EQ(mdl, nullptr);
}

TEST_F(TkModelTest, OpeningAWindowIgnoresAFailedDisplay) {
  ProMdl part = host_.AddPart(L"SHAFT");
  sim::FailCall("ProMdlDisplay", PRO_TK_GENERAL_ERROR, sim::Times::Once);
  int window = -1;
  EXPECT_EQ(model_.OpenMdlWindow(part, window), PRO_TK_NO_ERROR);
  EXPECT_GE(window, 0);
  sim::ReturnToHost();
  EXPECT_EQ(sim::CurrentWindow(), window);
  EXPECT_EQ(model_.GetCurMdlName(), L"SHAFT");

  sim::FailCall("ProObjectwindowMdlnameCreate", PRO_TK_E_NOT_FOUND, sim::Times::Once);
  EXPECT_EQ(model_.OpenMdlWindow(part, window), PRO_TK_E_NOT_FOUND);
}

TEST_F(TkModelTest, RepaintRefreshesAWindowWithAModelAndClearsAnEmptyOne) {
  host_.MakeCurrent(host_.AddPart(L"SHAFT"));
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  EXPECT_EQ(model_.RepaintCurWindow(), 0);
  host_.MakeCurrent(nullptr);
  EXPECT_EQ(model_.RepaintCurWindow(), 0);
  std::vector<std::string> calls;
  for (const auto& call : sim::CallLog()) {
    if (call.name.rfind("ProWindow", 0) == 0) calls.push_back(call.name);
  }
  EXPECT_EQ(calls, (std::vector<std::string>{"ProWindowCurrentGet", "ProWindowRefresh", "ProWindowRepaint",
                                             "ProWindowCurrentGet", "ProWindowClear"}));
}
