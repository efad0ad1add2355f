// CTkParam over the simulated host's parameters.
#include <gtest/gtest.h>

#include "CallLog.h"
#include "CommaLocale.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "TkParam.h"

namespace {

class TkParamTest : public testing::Test {
 protected:
  TkParamTest() {
    sim::ModelDef def;
    def.parameters.resize(4);
    auto& length = def.parameters[0];
    length.name = L"LENGTH";
    length.type = PRO_PARAM_DOUBLE;
    length.number = 3.14159;
    length.unit = L"mm";
    length.description = L"长度";
    length.designated = true;
    def.parameters[1].name = L"COUNT";
    def.parameters[1].type = PRO_PARAM_INTEGER;
    def.parameters[1].integer = 7;
    def.parameters[2].name = L"BOUGHT";
    def.parameters[2].type = PRO_PARAM_BOOLEAN;
    def.parameters[2].integer = 1;
    def.parameters[3].name = L"名称";
    def.parameters[3].text = L"输出轴";
    part_ = sim::AddModel(L"shaft.prt", def);
  }

  TestDir dir_;
  PluginHost host_{dir_};
  ProMdl part_ = nullptr;
  CTkParam param_;
};

}  // namespace

TEST_F(TkParamTest, ValuesReadAsTextsWithoutUnits) {
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"LENGTH", 2), L"3.14");
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"LENGTH", 0), L"3");
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"LENGTH", 4), L"3.1416");
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"count", 2), L"7");
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"BOUGHT", 2), L"TRUE");
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"名称", 2), L"输出轴");
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"MISSING", 2), L"");
  EXPECT_EQ(param_.GetMdlParamValue(nullptr, L"LENGTH", 2), L"");
}

TEST_F(TkParamTest, ValueReadsInTheParametersOwnUnitNotTheModels) {
  sim::ModelDef def;
  def.parameters.resize(1);
  def.parameters[0].name = L"WIDTH";
  def.parameters[0].type = PRO_PARAM_DOUBLE;
  def.parameters[0].number = 2;
  def.parameters[0].unit = L"in";
  ProMdl plate = sim::AddModel(L"plate.prt", def);
  EXPECT_EQ(param_.GetMdlParamValue(plate, L"WIDTH", 1), L"2.0");
}

TEST_F(TkParamTest, DoublesReadAndSetWithADecimalPointUnderACommaLocale) {
  CommaLocale comma;
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"LENGTH", 2), L"3.14");
  EXPECT_EQ(param_.SetMdlParamValue(part_, L"LENGTH", CTkParam::kDouble, L"5.4"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"LENGTH", 2), L"5.40");
  EXPECT_EQ(param_.CreateMdlParam(part_, L"WIDTH", CTkParam::kDouble, L"0.75"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"WIDTH", 3), L"0.750");
}

TEST_F(TkParamTest, TypeIsNoValueForAnythingUnreadableAndAnEmptyNameAsksNothing) {
  EXPECT_EQ(param_.GetMdlParamType(part_, L"LENGTH"), CTkParam::kDouble);
  EXPECT_EQ(param_.GetMdlParamType(part_, L"MISSING"), CTkParam::kNoValue);
  EXPECT_EQ(param_.GetMdlParamType(nullptr, L"LENGTH"), CTkParam::kNoValue);
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  EXPECT_EQ(param_.GetMdlParamType(part_, L""), CTkParam::kNoValue);
  for (const auto& call : sim::CallLog()) EXPECT_EQ(call.name.rfind("ProParameter", 0), std::string::npos);
}

TEST_F(TkParamTest, SettingABooleanTakesTheIntegerOfTheTextWhileCreatingOneTakesProBTrue) {
  EXPECT_EQ(param_.SetMdlParamValue(part_, L"BOUGHT", CTkParam::kBoolean, L"TRUE"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"BOUGHT", 2), L"FALSE");
  EXPECT_EQ(param_.SetMdlParamValue(part_, L"BOUGHT", CTkParam::kBoolean, L"1"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"BOUGHT", 2), L"TRUE");
  EXPECT_EQ(param_.CreateMdlParam(part_, L"STOCK", CTkParam::kBoolean, L"pro_b_true"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"STOCK", 2), L"TRUE");
}

TEST_F(TkParamTest, SettingKeepsTheUnitAndFailsForAMissingParameterOrBadType) {
  EXPECT_EQ(param_.SetMdlParamValue(part_, L"LENGTH", CTkParam::kDouble, L"12.5"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"LENGTH", 2), L"12.50");
  EXPECT_EQ(param_.SetMdlParamValue(part_, L"MISSING", CTkParam::kText, L"x"), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(param_.SetMdlParamValue(part_, L"LENGTH", 57, L"1"), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(param_.CreateMdlParam(part_, L"X", 54, L"1"), PRO_TK_BAD_INPUTS);
}

TEST_F(TkParamTest, CreatingAnExistingParameterKeepsItsValueAndStillAnswersZero) {
  EXPECT_EQ(param_.CreateMdlParam(part_, L"COUNT", CTkParam::kInteger, L"99"), 0);
  EXPECT_EQ(param_.GetMdlParamValue(part_, L"COUNT", 2), L"7");
  EXPECT_EQ(param_.CreateMdlParam(nullptr, L"COUNT", CTkParam::kInteger, L"99"), 0);
}

TEST_F(TkParamTest, NamesComeInTheModelsOrderWithNewOnesBehind) {
  param_.CreateMdlParam(part_, L"NOTE", CTkParam::kText, L"x");
  std::vector<std::wstring> names{L"old"};
  EXPECT_EQ(param_.GetMdlParamNames(part_, names), 0);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"LENGTH", L"COUNT", L"BOUGHT", L"名称", L"NOTE"}));
}

TEST_F(TkParamTest, DescriptionsAndDesignation) {
  EXPECT_EQ(param_.GetMdlParamDescription(part_, L"LENGTH"), L"长度");
  EXPECT_EQ(param_.GetMdlParamDescription(part_, L"COUNT"), L"");
  EXPECT_EQ(param_.SetMdlParamDescription(part_, L"COUNT", L"每台数量"), 0);
  EXPECT_EQ(param_.GetMdlParamDescription(part_, L"COUNT"), L"每台数量");
  EXPECT_EQ(param_.SetMdlParamDescription(part_, L"MISSING", L"x"), PRO_TK_E_NOT_FOUND);
  int designated = -1;
  EXPECT_EQ(param_.GetMdlParamDesignated(part_, L"LENGTH", designated), 0);
  EXPECT_EQ(designated, 1);
  EXPECT_EQ(param_.SetMdlParamDesignated(part_, L"LENGTH", 0), 0);
  param_.GetMdlParamDesignated(part_, L"LENGTH", designated);
  EXPECT_EQ(designated, 0);
  EXPECT_EQ(param_.SetMdlParamDesignated(part_, L"LENGTH", 0), PRO_TK_E_NOT_FOUND);
}

TEST(TkParamValueText, IntegerAlwaysReadsZeroAndUnknownTypesGiveNothing) {
  CTkParam param;
  std::wstring text = L"old";
  ProParamvalue value{};
  value.type = PRO_PARAM_INTEGER;
  value.value.i_val = 42;
  EXPECT_EQ(param.GetParamValueText(value, text, 2), 0);
  EXPECT_EQ(text, L"0");
  value.type = PRO_PARAM_DOUBLE;
  value.value.d_val = 2.5;
  param.GetParamValueText(value, text, 3);
  EXPECT_EQ(text, L"2.500");
  value.type = PRO_PARAM_NOTE_ID;
  EXPECT_EQ(param.GetParamValueText(value, text, 2), 0);
  EXPECT_EQ(text, L"");
}
