// Materials of parts: the materials held and the current one, material
// files read from "pro_material_dir" in both forms, the density and mass
// that follow the current material, and what a save keeps.
#include "HostControl.h"
#include "Inspection.h"
#include "MaterialFileText.h"
#include "ProArray.h"
#include "ProMaterial.h"
#include "ProMdl.h"
#include "ProParameter.h"
#include "ProPart.h"
#include "ProSolid.h"
#include "ProUtil.h"
#include "SimTest.h"

#include <string>
#include <vector>

namespace {

class SimMaterials : public SimTest {
 protected:
  SimMaterials() {
    dir.Write("m/shaft.prt", ModelJson("part", R"("material": "STEEL",
      "materials": ["STEEL", {"name": "BRASS", "density": 8.5e-6}], "density": 7.8e-6,
      "parameters": [{"name": "PTC_MATERIAL_NAME", "type": "string", "value": "STEEL"}],
      "massProperties": {"volume": 1000, "mass": 9.9})"));
    dir.Write("m/bare.prt", ModelJson("part", R"("massProperties": {"volume": 2000})"));
    dir.Write("m/top.asm", ModelJson("assembly"));
    dir.Write("mat/45.mtl", MaterialFileText("45", "7.850000e-09 tonne/mm^3"));
    shaft = Load(dir.Wide("m/shaft.prt"));
    bare = Load(dir.Wide("m/bare.prt"));
    SetMaterialDir(dir.Wide("mat"));
  }

  static void SetMaterialDir(const std::wstring& path) {
    ProName option = L"pro_material_dir";
    ProPath value{};
    path.copy(value, PRO_PATH_SIZE - 1);
    ASSERT_EQ(ProConfigoptSet(option, value), PRO_TK_NO_ERROR);
  }

  static std::vector<std::wstring> Held(ProMdl part, ProError expected = PRO_TK_NO_ERROR) {
    ProName* names = nullptr;
    EXPECT_EQ(ProArrayAlloc(0, sizeof(ProName), 1, reinterpret_cast<ProArray*>(&names)), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProPartMaterialsGet(static_cast<ProSolid>(part), &names), expected);
    int size = 0;
    ProArraySizeGet(names, &size);
    std::vector<std::wstring> held(names, names + size);
    ProArrayFree(reinterpret_cast<ProArray*>(&names));
    return held;
  }

  static std::wstring Current(ProMdl part) {
    ProName name{};
    ProError status = ProPartMaterialNameGet(static_cast<ProPart>(part), name);
    return status == PRO_TK_NO_ERROR ? std::wstring(name) : L"<" + std::to_wstring(status) + L">";
  }

  static ProError Read(ProMdl part, const wchar_t* name) {
    ProName buffer{};
    std::wcsncpy(buffer, name, PRO_NAME_SIZE - 1);
    return ProMaterialfileRead(static_cast<ProSolid>(part), buffer);
  }

  static ProError MakeCurrent(ProMdl part, const wchar_t* name) {
    ProMaterial material{};
    std::wcsncpy(material.matl_name, name, PRO_NAME_SIZE - 1);
    material.part = static_cast<ProSolid>(part);
    return ProMaterialCurrentSet(&material);
  }

  static ProError Delete(ProMdl part, const wchar_t* name) {
    ProMaterial material{};
    std::wcsncpy(material.matl_name, name, PRO_NAME_SIZE - 1);
    material.part = static_cast<ProSolid>(part);
    return ProMaterialDelete(&material);
  }

  static std::wstring MaterialParameter(ProMdl part) {
    ProModelitem item{};
    ProMdlToModelitem(part, &item);
    ProName name = L"PTC_MATERIAL_NAME";
    ProParameter param{};
    if (ProParameterInit(&item, name, &param) != PRO_TK_NO_ERROR) return L"<none>";
    ProParamvalue value{};
    EXPECT_EQ(ProParameterValueWithUnitsGet(&param, &value, nullptr), PRO_TK_NO_ERROR);
    return value.value.s_val;
  }

  static double Mass(ProMdl part) {
    ProMassProperty properties{};
    EXPECT_EQ(ProSolidMassPropertyGet(static_cast<ProSolid>(part), nullptr, &properties), PRO_TK_NO_ERROR);
    return properties.mass;
  }

  static double Density(ProMdl part) {
    double density = 0;
    EXPECT_EQ(ProPartDensityGet(static_cast<ProPart>(part), &density), PRO_TK_NO_ERROR);
    return density;
  }

  ProMdl shaft = nullptr;
  ProMdl bare = nullptr;
};

TEST_F(SimMaterials, APartHoldsItsMaterialsAndNamesOneCurrent) {
  ProName* names = nullptr;
  ASSERT_EQ(ProArrayAlloc(0, sizeof(ProName), 1, reinterpret_cast<ProArray*>(&names)), PRO_TK_NO_ERROR);
  ProName mine = L"MINE";
  ASSERT_EQ(ProArrayObjectAdd(reinterpret_cast<ProArray*>(&names), PRO_VALUE_UNUSED, 1, mine),
            PRO_TK_NO_ERROR);
  ASSERT_EQ(ProPartMaterialsGet(static_cast<ProSolid>(shaft), &names), PRO_TK_NO_ERROR);
  int size = 0;
  ProArraySizeGet(names, &size);
  EXPECT_EQ(std::vector<std::wstring>(names, names + size),
            (std::vector<std::wstring>{L"MINE", L"STEEL", L"BRASS"}))
      << "appended to the caller's array";
  ProArrayFree(reinterpret_cast<ProArray*>(&names));
  EXPECT_EQ(Current(shaft), L"STEEL");

  EXPECT_TRUE(Held(bare, PRO_TK_E_NOT_FOUND).empty());
  EXPECT_EQ(Current(bare), L"<-4>");
  ProMdl top = Load(dir.Wide("m/top.asm"));
  EXPECT_TRUE(Held(top, PRO_TK_INVALID_TYPE).empty());
  EXPECT_EQ(Current(top), L"<-18>");
}

TEST_F(SimMaterials, DeletingTheCurrentMaterialLeavesThePartWithoutOne) {
  EXPECT_EQ(Delete(shaft, L"COPPER"), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(Delete(shaft, L"brass"), PRO_TK_NO_ERROR);
  EXPECT_EQ(Current(shaft), L"STEEL");
  EXPECT_EQ(Delete(shaft, L"STEEL"), PRO_TK_NO_ERROR);
  EXPECT_TRUE(Held(shaft, PRO_TK_E_NOT_FOUND).empty());
  EXPECT_EQ(Current(shaft), L"<-4>");
  EXPECT_EQ(MaterialParameter(shaft), L"");
}

TEST_F(SimMaterials, AFileReadGivesTheMaterialItsDensityInThePartsUnitsAndSettingItCurrentWeighsThePart) {
  ASSERT_EQ(Read(shaft, L"45"), PRO_TK_NO_ERROR);
  EXPECT_EQ(Held(shaft), (std::vector<std::wstring>{L"STEEL", L"BRASS", L"45"}));
  EXPECT_EQ(Current(shaft), L"STEEL") << "a read alone changes nothing current";
  EXPECT_DOUBLE_EQ(Mass(shaft), 9.9);

  ASSERT_EQ(MakeCurrent(shaft, L"45"), PRO_TK_NO_ERROR);
  EXPECT_EQ(Current(shaft), L"45");
  EXPECT_EQ(MaterialParameter(shaft), L"45");
  // The default principal system is millimetre Newton second: tonnes per mm^3.
  EXPECT_DOUBLE_EQ(Density(shaft), 7.85e-9);
  EXPECT_DOUBLE_EQ(Mass(shaft), 7.85e-6) << "volume times density, no longer the file's mass";
  EXPECT_EQ(MakeCurrent(shaft, L"COPPER"), PRO_TK_E_NOT_FOUND);

  ASSERT_EQ(MakeCurrent(bare, L"45"), PRO_TK_E_NOT_FOUND) << "only a material the part holds";
  ASSERT_EQ(Read(bare, L"45"), PRO_TK_NO_ERROR);
  ASSERT_EQ(MakeCurrent(bare, L"45"), PRO_TK_NO_ERROR);
  EXPECT_EQ(MaterialParameter(bare), L"45") << "the parameter is made when the part has none";
  EXPECT_DOUBLE_EQ(Mass(bare), 2000 * 7.85e-9);
  EXPECT_EQ(MakeCurrent(shaft, L"BRASS"), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(Mass(shaft), 1000 * 8.5e-6);
}

TEST_F(SimMaterials, TheDensityFollowsTheUnitsOfTheFileAndOfThePart) {
  dir.Write("m/kg.prt", ModelJson("part", R"json("principalUnitSystem": "millimeter Kilogram Sec (mmKs)",
      "massProperties": {"volume": 1000})json"));
  ProMdl kg = Load(dir.Wide("m/kg.prt"));
  dir.Write("mat/h62.mtl", MaterialFileText("H62", "8.43 kg/dm^3"));
  ASSERT_EQ(Read(kg, L"H62"), PRO_TK_NO_ERROR);
  ASSERT_EQ(MakeCurrent(kg, L"H62"), PRO_TK_NO_ERROR);
  EXPECT_NEAR(Density(kg), 8.43e-6, 1e-18);
  EXPECT_NEAR(Mass(kg), 8.43e-3, 1e-15);
  ASSERT_EQ(Read(kg, L"45"), PRO_TK_NO_ERROR);
  ASSERT_EQ(MakeCurrent(kg, L"45"), PRO_TK_NO_ERROR);
  EXPECT_NEAR(Density(kg), 7.85e-6, 1e-18);
}

TEST_F(SimMaterials, TheNewerFormComesFirstThenTheOlderAndAFileWithoutADensityIsRefused) {
  dir.Write("mat/45.mat", "MATERIAL 45\nMASS_DENSITY = 1.0e-09\n");
  dir.Write("mat/HT200.MAT", "MATERIAL HT200\nYOUNG_MODULUS = 1.0e+05\nMASS_DENSITY = 7.2e-09\n");
  dir.Write("mat/odd.mtl", MaterialFileText("ODD", "7.8 furlong/mm^3"));
  dir.Write("mat/empty.mtl", "ND_RelParSet_K01 = {\nName = EMPTY\n}\n");
  ASSERT_EQ(Read(bare, L"45"), PRO_TK_NO_ERROR);
  ASSERT_EQ(Read(bare, L"ht200"), PRO_TK_NO_ERROR) << "the file is found whatever the case";
  EXPECT_EQ(Held(bare), (std::vector<std::wstring>{L"45", L"HT200"}));
  ASSERT_EQ(MakeCurrent(bare, L"45"), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(Density(bare), 7.85e-9);
  ASSERT_EQ(MakeCurrent(bare, L"HT200"), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(Density(bare), 7.2e-9) << "a bare number is in the part's units";

  EXPECT_EQ(Read(bare, L"ODD"), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(Read(bare, L"EMPTY"), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(Read(bare, L"MISSING"), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(Held(bare), (std::vector<std::wstring>{L"45", L"HT200"}));
  ProMdl top = Load(dir.Wide("m/top.asm"));
  EXPECT_EQ(Read(top, L"45"), PRO_TK_INVALID_TYPE);
}

TEST_F(SimMaterials, RereadingTheCurrentMaterialChangesThePartWithIt) {
  ASSERT_EQ(Read(bare, L"45"), PRO_TK_NO_ERROR);
  ASSERT_EQ(MakeCurrent(bare, L"45"), PRO_TK_NO_ERROR);
  dir.Write("other/45.mtl", MaterialFileText("45", "7.0e-09 tonne/mm^3"));
  SetMaterialDir(dir.Wide("other"));
  ASSERT_EQ(Read(bare, L"45"), PRO_TK_NO_ERROR);
  EXPECT_EQ(Held(bare), std::vector<std::wstring>{L"45"});
  EXPECT_DOUBLE_EQ(Density(bare), 7.0e-9);
}

TEST_F(SimMaterials, ARelativeMaterialDirectoryOfTheSessionIsTakenFromTheSessionDirectory) {
  dir.Write("s/session.json", R"({"open": ["gear.prt"], "configOptions": {
      "pro_material_dir": "materials", "template_file": "../t/a.txt", "display": "shade"}})");
  dir.Write("s/gear.prt", ModelJson("part", R"("massProperties": {"volume": 10})"));
  dir.Write("s/materials/45.mtl", MaterialFileText("45", "7.85e-09 tonne/mm^3"));
  sim::StartHost({dir.path() / "work"});
  ASSERT_EQ(sim::LoadSession(dir.path() / "s"), PRO_TK_NO_ERROR);
  auto options = sim::ConfigOptions();
  EXPECT_EQ(options[L"pro_material_dir"], dir.Wide("s/materials"));
  EXPECT_EQ(options[L"template_file"], dir.Wide("t/a.txt"));
  EXPECT_EQ(options[L"display"], L"shade");
  ProMdl gear = sim::SessionModels().at(0).handle;
  EXPECT_EQ(Read(gear, L"45"), PRO_TK_NO_ERROR);
}

TEST_F(SimMaterials, ASaveKeepsTheMaterialsTheCurrentOneAndItsDensity) {
  ASSERT_EQ(Read(shaft, L"45"), PRO_TK_NO_ERROR);
  ASSERT_EQ(MakeCurrent(shaft, L"45"), PRO_TK_NO_ERROR);
  ASSERT_EQ(Delete(shaft, L"STEEL"), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMdlSave(shaft), PRO_TK_NO_ERROR);

  sim::StartHost({dir.path() / "work"});
  shaft = Load(dir.Wide("m/shaft.prt"));
  EXPECT_EQ(Held(shaft), (std::vector<std::wstring>{L"BRASS", L"45"}));
  EXPECT_EQ(Current(shaft), L"45");
  EXPECT_DOUBLE_EQ(Mass(shaft), 1000 * 7.85e-9);
  ASSERT_EQ(MakeCurrent(shaft, L"BRASS"), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(Density(shaft), 8.5e-6) << "a held material keeps its own density";
}

}  // namespace
