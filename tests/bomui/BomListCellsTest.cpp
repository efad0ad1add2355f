// One filling of the list's cells asks the host for each model's mass and
// outline box once, and writes the texts the uncached engine gives.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "BomListCells.h"
#include "CallLog.h"
#include "HostControl.h"
#include "PluginHost.h"

namespace {

class BomListCellsFill : public testing::Test {
 protected:
  BomListCellsFill() {
    sim::ModelDef bolt;
    bolt.density = 0.0000078;
    bolt.massProperties.emplace();
    bolt.massProperties->volume = 1000;
    bolt.surfaces = {{{0, 0, 0}, {8, 8, 40}}};
    sim::AddModel(L"bolt.prt", bolt);
    sim::ModelDef plate = bolt;
    plate.massProperties->volume = 5000;
    plate.surfaces = {{{0, 0, 0}, {100, 5, 60}}};
    sim::AddModel(L"plate.prt", plate);
    sim::ComponentDef moved{2, L"bolt.prt"};
    moved.transform[3] = {30, 0, 0, 1};
    AddAssembly(L"sub.asm", {{1, L"bolt.prt"}, moved, {3, L"plate.prt"}});
    host_.MakeCurrent(AddAssembly(L"top.asm", {{1, L"sub.asm"}, {2, L"sub.asm"}, {3, L"bolt.prt"}}));
    EXPECT_EQ(bom_.GetAllLeveBomMdls({}, rows_, 0), 0);
  }

  static ProMdl AddAssembly(const std::wstring& file, const std::vector<sim::ComponentDef>& components) {
    sim::ModelDef def;
    def.type = PRO_MDL_ASSEMBLY;
    def.components = components;
    return sim::AddModel(file, def);
  }
  static ColInfo Col(int paramType) {
    ColInfo col;
    col.paramType = paramType;
    return col;
  }

  TestDir dir_;
  PluginHost host_{dir_};
  TkBOM bom_;
  std::vector<BomMdl> rows_;
};

}  // namespace

TEST_F(BomListCellsFill, AsksEachModelsMassAndBoxOnceWithTheUncachedTexts) {
  const std::vector<ColInfo> cols{Col(PARAMTYPE_UNITMASS), Col(PARAMTYPE_TOTALMASS), Col(PARAMTYPE_OUTSIZE)};
  // The bolt has a row under the top and one under the sub-assembly.
  ASSERT_EQ(rows_.size(), 5u);
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  CBomListCells cells(L".", 3);
  std::vector<std::wstring> texts;
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i) {
    for (const ColInfo& col : cols) texts.push_back(cells.CellText(col, rows_[i], i));
  }

  std::map<std::string, int> asked;
  for (const sim::CallRecord& call : sim::CallLog()) {
    if (call.name == "ProSolidMassPropertyGet" || call.name == "ProSolidSurfaceVisit" ||
        call.name == "ProSolidOutlineCompute")
      ++asked[call.name + " " + call.args.at(0)];
  }
  // Masses of the two parts; the surfaces of the two parts; the outline of
  // the top and of the sub-assembly.
  EXPECT_EQ(asked.size(), 6u);
  for (const auto& [call, times] : asked) EXPECT_EQ(times, 1) << call;

  std::vector<std::wstring> expected;
  for (const BomMdl& row : rows_) {
    double mass = 0;
    bom_.GetMdlMass(row.mdl, mass);
    std::wstring size;
    bom_.GetPartOutSize(row, size, 1, 0, L"X", L"", L"");
    expected.insert(expected.end(), {MassText(mass, 3), MassText(mass * row.quantity, 3), size});
  }
  EXPECT_EQ(texts, expected);
}
