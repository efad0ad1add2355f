#include "ParamCheck.h"

#include <gtest/gtest.h>

#include "HostControl.h"
#include "ParamDefs.h"
#include "ParamSource.h"
#include "PluginHost.h"
#include "TkModel.h"

namespace {

ParamData Attr(const std::wstring& name, int kind, const std::wstring& value = L"") {
  ParamData attr;
  attr.name = name;
  attr.kind = {kind == kPropUnitSystem ? L"系统单位" : L"参数", kind};
  attr.valueType = {L"字符串", 51};
  attr.value = value;
  return attr;
}

const std::wstring kMmKs = L"millimeter Kilogram Sec (mmKs)";
const std::wstring kIps = L"Inch lbm Second (IPS)";

TEST(ParamCheckColumns, EditColumnsFollowTheAttributePositionNotTheParameters) {
  EXPECT_EQ(EditColumnsByPosition({Attr(L"图号", 0), Attr(L"名称", 0), Attr(L"单位", 2)}),
            (std::vector<int>{3, 4}));
  // A unit system in front: its entry stays 0 and the last parameter falls off.
  EXPECT_EQ(EditColumnsByPosition({Attr(L"单位", 2), Attr(L"图号", 0), Attr(L"名称", 0)}),
            (std::vector<int>{0, 4}));
  EXPECT_EQ(EditColumnsByPosition({Attr(L"材料", -1), Attr(L"图号", 0)}), (std::vector<int>{0}));
  EXPECT_TRUE(EditColumnsByPosition({Attr(L"单位", 2)}).empty());
}

TEST(ParamCheckColumns, TheUnitSystemDropDownSitsOnTheLastUnitSystemAttribute) {
  EXPECT_EQ(UnitSystemColumn({Attr(L"图号", 0)}), -1);
  EXPECT_EQ(UnitSystemColumn({Attr(L"单位", 2), Attr(L"图号", 0), Attr(L"单位2", 2)}), 5);
}

class ParamCheckModelTest : public testing::Test {
 protected:
  std::wstring Principal(ProMdl mdl) const {
    ProUnitsystem system{};
    model.GetPrincipalUnitSystem(mdl, system);
    return system.name;
  }

  TestDir dir;
  PluginHost host{dir};
  CParamSource source;
  CTkModel model;
};

TEST_F(ParamCheckModelTest, StatusNamesEachMissingParameterAndNeverTheUnitSystem) {
  sim::ModelDef def;
  def.parameters = {TextParam(L"名称", L"轴"), RealParam(L"重量", 1.5)};
  ProMdl mdl = sim::AddModel(L"shaft.prt", def);
  EXPECT_EQ(CheckMdlStatus(source, mdl, {Attr(L"名称", 0), Attr(L"重量", 0), Attr(L"单位", 2, L"无此单位")}),
            L"参数存在");
  EXPECT_EQ(CheckMdlStatus(source, mdl, {Attr(L"图号", 0), Attr(L"名称", 0), Attr(L"材料", 0)}),
            L"图号不存在; 材料不存在; ");
  EXPECT_EQ(CheckMdlStatus(source, mdl, {Attr(L"图号", -1)}), L"参数存在")
      << "an unknown kind is never checked";
}

TEST_F(ParamCheckModelTest, WritingTakesTheFirstUnitSystemCellAndNeedsAParameter) {
  sim::ModelDef def;
  def.parameters = {TextParam(L"图号", L"A-1")};
  ProMdl mdl = sim::AddModel(L"shaft.prt", def);
  std::vector<ParamData> refs{Attr(L"单位", 2), Attr(L"图号", 0), Attr(L"单位2", 2)};
  EXPECT_EQ(WriteRowAttrs(source, model, mdl, refs, {L"01", L"SHAFT", L"", kIps, L"A-2", kMmKs}), 0);
  EXPECT_EQ(source.GetMdlParamValue(mdl, L"图号", 2), L"A-2");
  EXPECT_EQ(Principal(mdl), kIps);

  // A name that differs in case is no system of the model.
  WriteRowAttrs(source, model, mdl, refs, {L"01", L"SHAFT", L"", L"MILLIMETER KILOGRAM SEC (MMKS)", L"A-2"});
  EXPECT_EQ(Principal(mdl), kIps);

  // Without a parameter among the attributes nothing is written at all.
  EXPECT_EQ(WriteRowAttrs(source, model, mdl, {Attr(L"单位", 2)}, {L"01", L"SHAFT", L"", kMmKs}), -2);
  EXPECT_EQ(Principal(mdl), kIps);
}

}  // namespace
