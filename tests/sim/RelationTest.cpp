// Relation sets of models and of component features: reading into the
// caller's array, the lines the host refuses, regeneration on the
// parameters, and the relations a save writes.
#include "HostControl.h"
#include "ProArray.h"
#include "ProMdl.h"
#include "ProParameter.h"
#include "ProRelSet.h"
#include "ProWstring.h"
#include "SimTest.h"

#include <cmath>
#include <string>
#include <vector>

namespace {

class SimRelations : public SimTest {
 protected:
  SimRelations() {
    dir.Write("m/gear.prt", ModelJson("part", R"("relations": ["/* 分度圆", "D = M * Z"],
      "parameters": [{"name": "M", "type": "double", "value": 2},
                     {"name": "Z", "type": "integer", "value": 95},
                     {"name": "D", "type": "double", "value": 0},
                     {"name": "标记", "type": "string", "value": ""}])"));
    dir.Write("m/top.asm", ModelJson("assembly", R"("components": [
        {"id": 3, "model": "gear.prt", "relations": ["A = 120"]},
        {"id": 5, "model": "gear.prt"}],
      "features": [{"id": 4, "type": "DATUM_PLANE"}])"));
    top = Load(dir.Wide("m/top.asm"));
    gear = Load(dir.Wide("m/gear.prt"));
  }

  ProRelset ModelRelset(ProMdl mdl) const {
    ProModelitem item{};
    EXPECT_EQ(ProMdlToModelitem(mdl, &item), PRO_TK_NO_ERROR);
    ProRelset relset{};
    EXPECT_EQ(ProModelitemToRelset(&item, &relset), PRO_TK_NO_ERROR);
    return relset;
  }

  ProError FeatureRelset(int id, ProRelset& relset) const {
    ProModelitem feature{PRO_FEATURE, id, top};
    return ProModelitemToRelset(&feature, &relset);
  }

  static std::vector<std::wstring> Lines(ProRelset relset) {
    ProWstring* array = nullptr;
    EXPECT_EQ(ProArrayAlloc(0, sizeof(ProWstring), 1, reinterpret_cast<ProArray*>(&array)), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProRelsetRelationsGet(&relset, &array), PRO_TK_NO_ERROR);
    int size = 0;
    ProArraySizeGet(array, &size);
    std::vector<std::wstring> lines(array, array + size);
    ProWstringproarrayFree(array);
    return lines;
  }

  static ProError Set(ProRelset relset, std::vector<std::wstring> lines) {
    std::vector<ProWstring> pointers;
    for (std::wstring& line : lines) pointers.push_back(line.data());
    return ProRelsetRelationsSet(&relset, pointers.data(), static_cast<int>(pointers.size()));
  }

  ProParamvalue Value(ProMdl mdl, const wchar_t* name) const {
    ProModelitem item{};
    ProMdlToModelitem(mdl, &item);
    ProName buffer{};
    std::wcsncpy(buffer, name, PRO_NAME_SIZE - 1);
    ProParameter param{};
    ProParamvalue value{};
    EXPECT_EQ(ProParameterInit(&item, buffer, &param), PRO_TK_NO_ERROR) << name;
    EXPECT_EQ(ProParameterValueWithUnitsGet(&param, &value, nullptr), PRO_TK_NO_ERROR) << name;
    return value;
  }

  ProMdl top = nullptr;
  ProMdl gear = nullptr;
};

TEST_F(SimRelations, LinesOfAModelAndOfAComponentAreAppendedToTheCallersArray) {
  ProRelset relset = ModelRelset(gear);
  ProWstring* array = nullptr;
  ASSERT_EQ(ProArrayAlloc(0, sizeof(ProWstring), 1, reinterpret_cast<ProArray*>(&array)), PRO_TK_NO_ERROR);
  ProWstring mine = static_cast<ProWstring>(nullptr);
  ASSERT_EQ(ProArrayObjectAdd(reinterpret_cast<ProArray*>(&array), PRO_VALUE_UNUSED, 1, &mine),
            PRO_TK_NO_ERROR);
  ASSERT_EQ(ProRelsetRelationsGet(&relset, &array), PRO_TK_NO_ERROR);
  int size = 0;
  ProArraySizeGet(array, &size);
  ASSERT_EQ(size, 3);
  EXPECT_EQ(array[0], nullptr) << "what the caller put there stays first";
  EXPECT_EQ(std::wstring(array[1]), L"/* 分度圆");
  EXPECT_EQ(std::wstring(array[2]), L"D = M * Z");
  ProWstringproarrayFree(array);

  ProRelset component{};
  ASSERT_EQ(FeatureRelset(3, component), PRO_TK_NO_ERROR);
  EXPECT_EQ(Lines(component), std::vector<std::wstring>{L"A = 120"});
  ASSERT_EQ(FeatureRelset(5, component), PRO_TK_NO_ERROR);
  EXPECT_TRUE(Lines(component).empty());
}

TEST_F(SimRelations, OnlySolidsAndComponentFeaturesHaveRelationSets) {
  ProRelset relset{};
  EXPECT_EQ(FeatureRelset(4, relset), PRO_TK_E_NOT_FOUND) << "a datum plane";
  EXPECT_EQ(FeatureRelset(99, relset), PRO_TK_E_NOT_FOUND);
  ProModelitem postRegen{PRO_PART, PRO_RELSET_POST_REGEN_ID, gear};
  EXPECT_EQ(ProModelitemToRelset(&postRegen, &relset), PRO_TK_E_NOT_FOUND);
  int unknown = 0;
  ProModelitem stranger{PRO_PART, 1, &unknown};
  EXPECT_EQ(ProModelitemToRelset(&stranger, &relset), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProModelitemToRelset(nullptr, &relset), PRO_TK_BAD_INPUTS);
}

TEST_F(SimRelations, LinesThatAreNoRelationAreRefusedAndTheSetStaysAsItWas) {
  ProRelset relset = ModelRelset(gear);
  for (std::wstring bad :
       {L"IF D > 100", L"D = (M * Z", L"D = M * Z)", L"D == M", L"D = M +", L"= 5", L"D = 5 #", L"D = M Z",
        L"D = 1; Z = 2", L"D 5", L"2D = 5", L"D = \"open", L"D = M * * Z", L"ENDIF"}) {
    EXPECT_EQ(Set(relset, {L"/* ok", bad}), PRO_TK_GENERAL_ERROR) << bad;
  }
  EXPECT_EQ(Lines(relset), (std::vector<std::wstring>{L"/* 分度圆", L"D = M * Z"}));
  std::vector<std::wstring> good{L"",
                                 L"   ",
                                 L"/* 齿顶圆 da = m(z+2)",
                                 L"DA = M * (Z + 2)",
                                 L"\tX = -(M + 2) ^ 2 / 3.5e1",
                                 L"标记 = \"GB/T 5782 M\" + ITOS(M) + \"×\" + ITOS(Z)",
                                 L"r_1 = SQRT(ABS(-4))"};
  EXPECT_EQ(Set(relset, good), PRO_TK_NO_ERROR);
  EXPECT_EQ(Lines(relset), good);
  EXPECT_EQ(Set(relset, {}), PRO_TK_NO_ERROR);
  EXPECT_TRUE(Lines(relset).empty()) << "no lines remove all relations";
  EXPECT_EQ(ProRelsetRelationsSet(&relset, nullptr, -1), PRO_TK_BAD_INPUTS);
}

TEST_F(SimRelations, RegeneratingAssignsNumbersAndTextsToParametersInOrder) {
  ProRelset relset = ModelRelset(gear);
  ASSERT_EQ(Set(relset, {L"M = 2.5", L"D = M * Z", L"z = D / 2 + 0.4", L"标记 = \"M\" + ITOS(M * 4)",
                         L"WIDTH = (D - 7) / 2", L"NOTE = \"齿轮\""}),
            PRO_TK_NO_ERROR);
  ASSERT_EQ(ProRelsetRegenerate(&relset), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(Value(gear, L"D").value.d_val, 237.5);
  ProParamvalue z = Value(gear, L"Z");
  EXPECT_EQ(z.type, PRO_PARAM_INTEGER) << "an existing parameter keeps its type";
  EXPECT_EQ(z.value.i_val, 119);
  EXPECT_EQ(std::wstring(Value(gear, L"标记").value.s_val), L"M10");
  ProParamvalue width = Value(gear, L"width");
  EXPECT_EQ(width.type, PRO_PARAM_DOUBLE) << "a new name becomes a parameter";
  EXPECT_DOUBLE_EQ(width.value.d_val, 115.25);
  EXPECT_EQ(std::wstring(Value(gear, L"NOTE").value.s_val), L"齿轮");
}

TEST_F(SimRelations, ALineWhoseValueCannotBeHadChangesNothingAndTheRestStillRuns) {
  ProRelset relset = ModelRelset(gear);
  for (std::wstring line : {L"D = UNKNOWN * 2", L"D = M / 0", L"D = \"text\"", L"标记 = M", L"D = \"a\" * 2",
                            L"D = NOSUCH(M)", L"D = SQRT(-1)"}) {
    ASSERT_EQ(Set(relset, {line, L"M = 3"}), PRO_TK_NO_ERROR) << line;
    EXPECT_EQ(ProRelsetRegenerate(&relset), PRO_TK_GENERAL_ERROR) << line;
    EXPECT_DOUBLE_EQ(Value(gear, L"D").value.d_val, 0) << line;
    EXPECT_DOUBLE_EQ(Value(gear, L"M").value.d_val, 3) << line;
  }
}

TEST_F(SimRelations, AComponentsRelationsWorkOnTheAssemblysParameters) {
  ProRelset component{};
  ASSERT_EQ(FeatureRelset(5, component), PRO_TK_NO_ERROR);
  ASSERT_EQ(Set(component, {L"CENTER = 2 * (25 + 95) / 2"}), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProRelsetRegenerate(&component), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(Value(top, L"CENTER").value.d_val, 120);
  ProRelset other{};
  ASSERT_EQ(FeatureRelset(3, other), PRO_TK_NO_ERROR);
  EXPECT_EQ(Lines(other), std::vector<std::wstring>{L"A = 120"}) << "each component keeps its own";
}

TEST_F(SimRelations, ASaveWritesTheRelationsOfTheModelAndOfItsComponents) {
  ASSERT_EQ(Set(ModelRelset(gear), {}), PRO_TK_NO_ERROR);
  ProRelset component{};
  ASSERT_EQ(FeatureRelset(5, component), PRO_TK_NO_ERROR);
  ASSERT_EQ(Set(component, {L"/* 第二个", L"B = 2"}), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMdlSave(gear), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMdlSave(top), PRO_TK_NO_ERROR);

  sim::StartHost({dir.path() / "work"});
  top = Load(dir.Wide("m/top.asm"));
  gear = Load(dir.Wide("m/gear.prt"));
  EXPECT_EQ(Origin(top), dir.Wide("m/top.asm.1"));
  EXPECT_TRUE(Lines(ModelRelset(gear)).empty()) << "cleared relations are not kept from the old file";
  ASSERT_EQ(FeatureRelset(5, component), PRO_TK_NO_ERROR);
  EXPECT_EQ(Lines(component), (std::vector<std::wstring>{L"/* 第二个", L"B = 2"}));
  ASSERT_EQ(FeatureRelset(3, component), PRO_TK_NO_ERROR);
  EXPECT_EQ(Lines(component), std::vector<std::wstring>{L"A = 120"});
}

}  // namespace
