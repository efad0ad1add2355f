// Derived attributes of a row: outer size, parent, mass, highlighting, date.
#include <regex>

#include "BomTestSupport.h"
#include "CodePage.h"
#include "CommaLocale.h"
#include "HostControl.h"
#include "SelectionBuffer.h"
#include "TkMaterial.h"

namespace {

class BomAttributes : public BomTest {
 protected:
  // A part of one surface box.
  void BoxPart(const std::wstring& file, sim::SurfaceDef box) {
    sim::ModelDef def;
    def.surfaces = {box};
    sim::AddModel(file, def);
  }
  std::vector<BomMdl> MultiLevel() {
    std::vector<BomMdl> rows;
    EXPECT_EQ(bom_.GetAllLeveBomMdls(none_, rows, 0), 0);
    return rows;
  }
  std::wstring Size(const BomMdl& row) {
    std::wstring text;
    EXPECT_EQ(bom_.GetPartOutSize(row, text, 1, 0, L"X", L"", L""), 0);
    return text;
  }
};

}  // namespace

TEST_F(BomAttributes, PartSizeIsItsSurfacesBoxSmallestFirst) {
  BoxPart(L"plate.prt", {{0, 0, 0}, {100, 20.4, 50}});
  BoxPart(L"block.prt", {{-1, 0, 2}, {4, 3, 5}});
  MakeCurrent(Assembly(L"top.asm", {L"plate.prt", L"block.prt"}));
  auto rows = MultiLevel();
  EXPECT_EQ(Size(rows[1]), L"20X50X100");
  EXPECT_EQ(Size(rows[2]), L"3X3X5");
  std::wstring text;
  EXPECT_EQ(bom_.GetPartOutSize(rows[1], text, 0, 1, L"*", L"[", L"]"), 0);
  EXPECT_EQ(text, L"[100.0*20.4*50.0]");
}

TEST_F(BomAttributes, PartSizeKeepsTheDecimalPointUnderACommaLocale) {
  BoxPart(L"plate.prt", {{0, 0, 0}, {100, 20.4, 50}});
  MakeCurrent(Assembly(L"top.asm", std::vector<std::wstring>{L"plate.prt"}));
  auto rows = MultiLevel();
  CommaLocale comma;
  std::wstring text;
  EXPECT_EQ(bom_.GetPartOutSize(rows[1], text, 1, 2, L"X", L"", L""), 0);
  EXPECT_EQ(text, L"20.40X50.00X100.00");
}

TEST_F(BomAttributes, SubAssemblySizeComesFromItsPlacedPartsAndTheTopRowHasAPathWithoutIds) {
  BoxPart(L"block.prt", {{0, 0, 0}, {10, 10, 10}});
  sim::ComponentDef moved{2, L"block.prt"};
  moved.transform[3] = {30, 0, 0, 1};
  AssemblyOf(L"pair.asm", std::vector<sim::ComponentDef>{{1, L"block.prt"}, moved});
  MakeCurrent(Assembly(L"top.asm", std::vector<std::wstring>{L"pair.asm"}));
  auto rows = MultiLevel();
  EXPECT_EQ(Size(rows[1]), L"10X10X40");
  EXPECT_EQ(Size(rows[0]), L"10X10X40");
}

TEST_F(BomAttributes, ParentNameAndParameterOfTheFirstOccurrence) {
  Part(L"p.prt");
  Assembly(L"sub.asm", std::vector<std::wstring>{L"p.prt"}, {{L"图号", L"JSQ-02"}});
  MakeCurrent(Assembly(L"top.asm", std::vector<std::wstring>{L"sub.asm"}, {{L"图号", L"JSQ-00"}}));
  auto rows = MultiLevel();
  std::wstring text = L"old";
  EXPECT_EQ(bom_.GetParentName(rows[0], text), 0);
  EXPECT_EQ(text, L"");
  EXPECT_EQ(bom_.GetParentName(rows[1], text), 0);
  EXPECT_EQ(text, L"TOP");
  EXPECT_EQ(bom_.GetParentParam(rows[1], L"图号", text), 0);
  EXPECT_EQ(text, L"JSQ-00");
  EXPECT_EQ(bom_.GetParentParam(rows[2], L"图号", text), 0);
  EXPECT_EQ(text, L"JSQ-02");
  EXPECT_EQ(bom_.GetParentParam(rows[0], L"图号", text), 0);
  EXPECT_EQ(text, L"");
}

TEST_F(BomAttributes, MassOfAMaterialPartComesFromTheHostAndOtherwiseFromDensity) {
  sim::ModelDef steel;
  steel.parameters.resize(1);
  steel.parameters[0].name = L"PTC_MATERIAL_NAME";
  steel.parameters[0].text = L"STEEL";
  steel.massProperties.emplace();
  steel.massProperties->volume = 1000;
  steel.massProperties->mass = 7.5;
  ProMdl withMaterial = sim::AddModel(L"steel.prt", steel);
  sim::ModelDef bare;
  bare.density = 0.0000078;
  bare.massProperties.emplace();
  bare.massProperties->volume = 1000;
  ProMdl withDensity = sim::AddModel(L"bare.prt", bare);
  double mass = -1;
  EXPECT_EQ(bom_.GetMdlMass(withMaterial, mass), 0);
  EXPECT_DOUBLE_EQ(mass, 7.5);
  EXPECT_EQ(bom_.GetMdlMass(withDensity, mass), 0);
  EXPECT_DOUBLE_EQ(mass, 0.0078);
  // An assembly sums its parts, a suppressed one too.
  ProMdl top =
      AssemblyOf(L"top.asm", std::vector<sim::ComponentDef>{{1, L"steel.prt"}, Suppressed(2, L"bare.prt")});
  EXPECT_EQ(bom_.GetMdlMass(top, mass), 0);
  EXPECT_DOUBLE_EQ(mass, 7.5078);
}

TEST_F(BomAttributes, AssigningSteel45ToASamplePartChangesItsUnitMassInKilograms) {
  ASSERT_EQ(sim::LoadSession(std::filesystem::path(BOM_SAMPLES_DIR) / "reducer"), PRO_TK_NO_ERROR);
  ProMdl cover = sim::OpenModel(L"cover.prt");
  ASSERT_NE(cover, nullptr);
  double grey = 0;
  ASSERT_EQ(bom_.GetMdlMass(cover, grey), 0);
  EXPECT_NEAR(grey, 17.82, 0.01) << "HT200 as the sample gives it";
  // The session's material directory is its own materials/, 45 steel 7.85 g/cm^3.
  ASSERT_EQ(CTkMaterial().AssignMaterial(cover, L"45"), 0);
  double steel = 0;
  ASSERT_EQ(bom_.GetMdlMass(cover, steel), 0);
  EXPECT_NEAR(steel, grey * 7.85 / 7.2, 0.01);
}

TEST_F(BomAttributes, HighlightSelectsAtMost52OccurrencesInTheirParentsContext) {
  Part(L"bolt.prt");
  MakeCurrent(Assembly(L"top.asm", std::vector<std::wstring>(100, L"bolt.prt")));
  std::vector<BomMdl> rows;
  ASSERT_EQ(bom_.GetBomMdls(none_, rows), 0);
  ASSERT_EQ(rows[1].quantity, 100);
  EXPECT_EQ(bom_.HighLightBomMdl(rows[1]), 0);
  auto selected = sim::SelectionBuffer();
  ASSERT_EQ(selected.size(), 52u);
  EXPECT_EQ(selected[0].path.table_num, 0);
  EXPECT_EQ(selected[51].item.id, 52);
  // The top row selects nothing, and the old selection is gone.
  EXPECT_EQ(bom_.HighLightBomMdl(rows[0]), 0);
  EXPECT_TRUE(sim::SelectionBuffer().empty());
}

TEST_F(BomAttributes, TodayIsYearMonthDayWithDots) {
  EXPECT_TRUE(
      std::regex_match(platform::ToNarrow(bom_.GetTodayText()), std::regex(R"(\d{4}\.\d{2}\.\d{2})")));
}
