// CTkMaterial over the simulated host: the material directory option, the
// listing of material files, the current material, and an assignment that
// deletes every material first.
#include <gtest/gtest.h>

#include <algorithm>

#include "CallLog.h"
#include "HostControl.h"
#include "Inspection.h"
#include "MaterialFileText.h"
#include "PluginHost.h"
#include "TkMaterial.h"
#include "TkModel.h"
#include "TkParam.h"

namespace {

class TkMaterialTest : public testing::Test {
 protected:
  TkMaterialTest() {
    dir_.Write("mat/45.mtl", MaterialFileText("45", "7.85e-09 tonne/mm^3"));
    dir_.Write("mat/q235.mtl", MaterialFileText("Q235", "7.85e-09 tonne/mm^3"));
    dir_.Write("mat/6061-t6.mtl", MaterialFileText("6061-T6", "2.7e-09 tonne/mm^3"));
    dir_.Write("mat/readme.txt", "not a material");
    dir_.Write("mat/old/ht150.mtl", MaterialFileText("HT150", "7.2e-09 tonne/mm^3"));
    sim::ModelDef def;
    def.materials = {{L"STEEL", 7.8e-6}, {L"BRASS", 8.5e-6}};
    def.material = L"STEEL";
    def.density = 7.8e-6;
    def.parameters.resize(1);
    def.parameters[0].name = L"PTC_MATERIAL_NAME";
    def.parameters[0].text = L"STEEL";
    def.massProperties.emplace();
    def.massProperties->volume = 1000;
    def.massProperties->mass = 9.9;
    part_ = sim::AddModel(L"shaft.prt", def);
  }

  double Mass(ProMdl mdl) const {
    double mass = 0;
    double unused[9];
    EXPECT_EQ(CTkModel().GetMassProperty(mdl, mass, unused[0], unused[1], unused[2], unused[3], unused[4],
                                         unused[5], unused[6], unused[7], unused[8], L""),
              0);
    return mass;
  }

  TestDir dir_;
  PluginHost host_{dir_};
  ProMdl part_ = nullptr;
  CTkMaterial material_;
};

}  // namespace

TEST_F(TkMaterialTest, TheMaterialDirectoryIsTheOptionAndAnEmptyOneAnswersNotFound) {
  std::wstring directory = L"old";
  EXPECT_EQ(material_.GetMaterialDir(directory), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(directory, L"");
  ASSERT_EQ(material_.SetMaterialDir(L"D:\\材料"), 0);
  EXPECT_EQ(sim::ConfigOptions()[L"pro_material_dir"], L"D:\\材料");
  EXPECT_EQ(material_.GetMaterialDir(directory), 0);
  EXPECT_EQ(directory, L"D:\\材料");
  ASSERT_EQ(material_.SetMaterialDir(L""), 0);
  EXPECT_EQ(material_.GetMaterialDir(directory), PRO_TK_E_NOT_FOUND);
}

TEST_F(TkMaterialTest, TheMaterialDirectoryIsReadIntoABufferOfEightyCharacters) {
  std::wstring longDir = L"/materials/" + std::wstring(100, L'm');
  ASSERT_EQ(material_.SetMaterialDir(longDir), 0);
  std::wstring directory;
  EXPECT_EQ(material_.GetMaterialDir(directory), 0);
  EXPECT_EQ(directory, longDir.substr(0, 80));
}

TEST_F(TkMaterialTest, ListingGivesBareUpperCaseNamesOrFileNamesAndTheSubdirectories) {
  std::vector<std::wstring> names{L"stale"};
  std::vector<std::wstring> directories{L"stale"};
  ASSERT_EQ(material_.ListMaterialFiles(dir_.Wide("mat"), L"*.mtl", names, directories, 1), 0);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"45", L"6061-T6", L"Q235"}));
  EXPECT_EQ(directories, std::vector<std::wstring>{dir_.Wide("mat/old")});
  ASSERT_EQ(material_.ListMaterialFiles(dir_.Wide("mat"), L"*.mtl", names, directories, 0), 0);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"45.mtl", L"6061-t6.mtl", L"q235.mtl"}));
}

TEST_F(TkMaterialTest, AnEmptyDirectoryAnswersBadInputsAndAMissingOneTheHostsStatus) {
  std::vector<std::wstring> names{L"kept"};
  std::vector<std::wstring> directories{L"kept"};
  EXPECT_EQ(material_.ListMaterialFiles(L"", L"*.mtl", names, directories, 1), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(names, std::vector<std::wstring>{L"kept"});
  EXPECT_EQ(directories, std::vector<std::wstring>{L"kept"});
  EXPECT_EQ(material_.ListMaterialFiles(dir_.Wide("nowhere"), L"*.mtl", names, directories, 1),
            PRO_TK_INVALID_DIR);
  EXPECT_TRUE(names.empty());
}

TEST_F(TkMaterialTest, AssigningDeletesEveryMaterialThenSetsTheNewOneCurrentTwice) {
  ASSERT_EQ(material_.SetMaterialDir(dir_.Wide("mat")), 0);
  EXPECT_EQ(material_.GetMdlMaterialName(part_), L"STEEL");
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  EXPECT_EQ(material_.AssignMaterial(part_, L"45"), 0);
  std::vector<sim::CallRecord> calls = sim::CallLog();
  sim::SetCallLogging(false);
  auto count = [&](const std::string& name) {
    return std::count_if(calls.begin(), calls.end(),
                         [&](const sim::CallRecord& call) { return call.name == name; });
  };
  EXPECT_EQ(count("ProMaterialDelete"), 2);
  EXPECT_EQ(count("ProMaterialCurrentSet"), 2);
  EXPECT_EQ(material_.GetMdlMaterialName(part_), L"45");
  EXPECT_EQ(CTkParam().GetMdlParamValue(part_, L"PTC_MATERIAL_NAME", 2), L"45");
  // Volume 1000 mm^3 of 45 steel in the default system's tonnes.
  EXPECT_DOUBLE_EQ(Mass(part_), 7.85e-6);
}

TEST_F(TkMaterialTest, APartWithoutMaterialsTakesOneAndAFailedReadLeavesItWithNone) {
  ASSERT_EQ(material_.SetMaterialDir(dir_.Wide("mat")), 0);
  ProMdl bare = sim::AddModel(L"bare.prt", {});
  EXPECT_EQ(material_.GetMdlMaterialName(bare), L"");
  EXPECT_EQ(material_.AssignMaterial(bare, L"q235"), 0);
  EXPECT_EQ(material_.GetMdlMaterialName(bare), L"Q235");

  EXPECT_EQ(material_.AssignMaterial(part_, L"HT150"), PRO_TK_E_NOT_FOUND) << "not in the directory itself";
  EXPECT_EQ(material_.GetMdlMaterialName(part_), L"");
  ASSERT_EQ(material_.SetMaterialDir(dir_.Wide("mat/old")), 0);
  EXPECT_EQ(material_.AssignMaterial(part_, L"HT150"), 0);
  EXPECT_EQ(material_.GetMdlMaterialName(part_), L"HT150");
}
