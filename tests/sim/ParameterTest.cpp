// Parameters of models: lookup, typed values with units, creation, visits,
// descriptions and designation, and the model-file keys they come from.
#include "ProMdl.h"
#include "ProParameter.h"
#include "ProWstring.h"
#include "SimTest.h"

#include <cwchar>

namespace {

class SimParameters : public SimTest {
 protected:
  SimParameters() {
    dir.Write("m/shaft.prt", ModelJson("part", R"("parameters": [
      {"name": "LENGTH", "type": "double", "value": 12.5, "unit": "mm", "description": "长度", "designated": true},
      {"name": "名称", "type": "string", "value": "输出轴"},
      {"name": "COUNT", "type": "integer", "value": 3},
      {"name": "BOUGHT", "type": "boolean", "value": true}])"));
    mdl = Load(dir.Wide("m/shaft.prt"));
    ProMdlToModelitem(mdl, &item);
  }

  ProParameter Init(const wchar_t* name, ProError expected = PRO_TK_NO_ERROR) {
    ProParameter param{};
    ProName buffer{};
    std::wcsncpy(buffer, name, PRO_NAME_SIZE - 1);
    EXPECT_EQ(ProParameterInit(&item, buffer, &param), expected);
    return param;
  }

  ProMdl mdl = nullptr;
  ProModelitem item{};
};

TEST_F(SimParameters, ModelItemNamesTheModelAndValuesComeWithTheirUnits) {
  EXPECT_EQ(item.type, PRO_PART);
  EXPECT_EQ(item.owner, mdl);
  ProParameter length = Init(L"length");
  EXPECT_EQ(std::wstring(length.id), L"LENGTH");
  ProParamvalue value{};
  ProUnititem unit{};
  ASSERT_EQ(ProParameterValueWithUnitsGet(&length, &value, &unit), PRO_TK_NO_ERROR);
  EXPECT_EQ(value.type, PRO_PARAM_DOUBLE);
  EXPECT_DOUBLE_EQ(value.value.d_val, 12.5);
  EXPECT_EQ(std::wstring(unit.name), L"mm");
  ProParameter flag = Init(L"BOUGHT");
  ASSERT_EQ(ProParameterValueWithUnitsGet(&flag, &value, &unit), PRO_TK_NO_ERROR);
  EXPECT_EQ(value.value.l_val, 1);
  EXPECT_EQ(std::wstring(unit.name), L"") << "unitless";
  Init(L"MISSING", PRO_TK_E_NOT_FOUND);
}

TEST_F(SimParameters, WithoutAUnitToFillTheValueComesInTheModelsUnits) {
  dir.Write("m/plate.prt",
            ModelJson("part", R"json("principalUnitSystem": "Inch lbm Second (IPS)", "parameters": [
      {"name": "WIDTH", "type": "double", "value": 50.8, "unit": "mm"},
      {"name": "WEIGHT", "type": "double", "value": 2, "unit": "kg"},
      {"name": "RATIO", "type": "double", "value": 0.5}])json"));
  ProModelitem plate{};
  ProMdlToModelitem(Load(dir.Wide("m/plate.prt")), &plate);
  struct Case {
    ProName name;
    double own;
    double inModelUnits;
  };
  for (Case c : {Case{L"WIDTH", 50.8, 2}, Case{L"WEIGHT", 2, 2 / 0.45359237}, Case{L"RATIO", 0.5, 0.5}}) {
    ProParameter param{};
    ASSERT_EQ(ProParameterInit(&plate, c.name, &param), PRO_TK_NO_ERROR);
    ProParamvalue value{};
    ProUnititem unit{};
    ASSERT_EQ(ProParameterValueWithUnitsGet(&param, &value, &unit), PRO_TK_NO_ERROR);
    EXPECT_DOUBLE_EQ(value.value.d_val, c.own);
    ASSERT_EQ(ProParameterValueWithUnitsGet(&param, &value, nullptr), PRO_TK_NO_ERROR);
    EXPECT_DOUBLE_EQ(value.value.d_val, c.inModelUnits);
  }
}

TEST_F(SimParameters, SettingKeepsTheTypeAndCreatingRefusesAnExistingName) {
  ProParameter count = Init(L"COUNT");
  ProParamvalue value{};
  value.type = PRO_PARAM_STRING;
  EXPECT_EQ(ProParameterValueWithUnitsSet(&count, &value, nullptr), PRO_TK_INVALID_TYPE);
  value.type = PRO_PARAM_INTEGER;
  value.value.i_val = 9;
  EXPECT_EQ(ProParameterValueWithUnitsSet(&count, &value, nullptr), PRO_TK_NO_ERROR);
  ProParamvalue read{};
  ProParameterValueWithUnitsGet(&count, &read, nullptr);
  EXPECT_EQ(read.value.i_val, 9);
  ProParameter created{};
  ProName name = L"COUNT";
  EXPECT_EQ(ProParameterWithUnitsCreate(&item, name, &value, nullptr, &created), PRO_TK_E_FOUND);
}

TEST_F(SimParameters, VisitFollowsTheFileOrderWithCreatedOnesBehind) {
  ProParamvalue value{};
  value.type = PRO_PARAM_STRING;
  std::wcscpy(value.value.s_val, L"x");
  ProParameter created{};
  ProName name = L"NOTE";
  ASSERT_EQ(ProParameterWithUnitsCreate(&item, name, &value, nullptr, &created), PRO_TK_NO_ERROR);
  std::vector<std::wstring> names;
  auto collect = [](ProParameter* param, ProError, ProAppData data) {
    static_cast<std::vector<std::wstring>*>(data)->push_back(param->id);
    return PRO_TK_NO_ERROR;
  };
  ASSERT_EQ(ProParameterVisit(&item, nullptr, collect, &names), PRO_TK_NO_ERROR);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"LENGTH", L"名称", L"COUNT", L"BOUGHT", L"NOTE"}));
}

TEST_F(SimParameters, DescriptionAndDesignationAnswerAsTheHostDoes) {
  ProParameter length = Init(L"LENGTH");
  wchar_t* description = nullptr;
  ASSERT_EQ(ProParameterDescriptionGet(&length, &description), PRO_TK_NO_ERROR);
  EXPECT_EQ(std::wstring(description), L"长度");
  ProWstringFree(description);
  ProParameter count = Init(L"COUNT");
  EXPECT_EQ(ProParameterDescriptionGet(&count, &description), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(ProParameterDesignationAdd(&length), PRO_TK_E_FOUND);
  EXPECT_EQ(ProParameterDesignationRemove(&count), PRO_TK_E_NOT_FOUND);
  ProBoolean designated = PRO_B_FALSE;
  ASSERT_EQ(ProParameterDesignationVerify(&length, &designated), PRO_TK_NO_ERROR);
  EXPECT_EQ(designated, PRO_B_TRUE);
}

}  // namespace
