// Subtypes, feature status, drawing solids, transforms along paths,
// outlines, mass properties and the selection buffer.
#include "ProAsmcomp.h"
#include "ProDrawing.h"
#include "ProArray.h"
#include "ProFeature.h"
#include "ProMdl.h"
#include "ProPart.h"
#include "ProSelbuffer.h"
#include "ProSolid.h"
#include "SelectionBuffer.h"
#include "SimTest.h"

namespace {

// A block part 10 x 20 x 30 with a datum plane, placed twice in an assembly:
// once as it is (id 1), once turned a quarter about z and moved by 100 in x
// (id 2, suppressed: id 3 holds the same placement active).
class SimGeometry : public SimTest {
 protected:
  SimGeometry() {
    dir.Write("work/block.prt", ModelJson("part", R"("subtype": 5, "density": 0.002,
      "massProperties": {"volume": 6000, "cog": [5, 10, 15], "inertia": [1, 2, 3, 4, 5, 6]},
      "surfaces": [{"min": [0, 0, 0], "max": [10, 20, 0]}, {"min": [0, 0, 30], "max": [10, 20, 30]}],
      "features": [{"id": 1, "type": "DATUM_PLANE"}])"));
    std::string turned = R"([[0, 1, 0, 0], [-1, 0, 0, 0], [0, 0, 1, 0], [100, 0, 0, 1]])";
    dir.Write("work/pair.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "block.prt"},
      {"id": 2, "model": "block.prt", "transform": )" + turned +
                                                         R"(, "suppressed": true},
      {"id": 3, "model": "block.prt", "transform": )" + turned +
                                                         "}]"));
    pair = static_cast<ProSolid>(Load(dir.Wide("work/pair.asm")));
    block = static_cast<ProSolid>(Load(dir.Wide("work/block.prt")));
  }

  ProSolid pair = nullptr;
  ProSolid block = nullptr;
};

TEST_F(SimGeometry, SubtypeAndSuppressionComeFromTheFiles) {
  ProMdlsubtype subtype = PROMDLSTYPE_NONE;
  ASSERT_EQ(ProMdlSubtypeGet(block, &subtype), PRO_TK_NO_ERROR);
  EXPECT_EQ(subtype, PROMDLSTYPE_PART_CONCEPT_MODEL);
  ProFeatStatus status = PRO_FEAT_INVALID;
  ProFeature suppressed{PRO_FEATURE, 2, pair};
  ASSERT_EQ(ProFeatureStatusGet(&suppressed, &status), PRO_TK_NO_ERROR);
  EXPECT_EQ(status, 5);
  ProFeature active{PRO_FEATURE, 3, pair};
  ProFeatureStatusGet(&active, &status);
  EXPECT_EQ(status, PRO_FEAT_ACTIVE);
  ProFeature missing{PRO_FEATURE, 9, pair};
  EXPECT_EQ(ProFeatureStatusGet(&missing, &status), PRO_TK_E_NOT_FOUND);
}

TEST_F(SimGeometry, DrawingSolidsComeInTheirOrderOrNotAtAll) {
  dir.Write("work/plan.drw", ModelJson("drawing", R"("solids": ["pair.asm", "block.prt"])"));
  dir.Write("work/empty.drw", ModelJson("drawing"));
  ProSolid* solids = nullptr;
  ASSERT_EQ(ProDrawingSolidsCollect(static_cast<ProDrawing>(Load(dir.Wide("work/plan.drw"))), &solids),
            PRO_TK_NO_ERROR);
  int count = 0;
  ProArraySizeGet(solids, &count);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(solids[0], pair);
  ProArrayFree(reinterpret_cast<ProArray*>(&solids));
  EXPECT_EQ(ProDrawingSolidsCollect(static_cast<ProDrawing>(Load(dir.Wide("work/empty.drw"))), &solids),
            PRO_TK_E_NOT_FOUND);
}

TEST_F(SimGeometry, PathTransformGoesBothWays) {
  ProIdTable ids{3};
  ProAsmcomppath path{};
  ASSERT_EQ(ProAsmcomppathInit(pair, ids, 1, &path), PRO_TK_NO_ERROR);
  ProMatrix up, down;
  ASSERT_EQ(ProAsmcomppathTrfGet(&path, PRO_B_TRUE, up), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProAsmcomppathTrfGet(&path, PRO_B_FALSE, down), PRO_TK_NO_ERROR);
  ProVector corner{10, 20, 30}, inTop, back;
  ProPntTrfEval(corner, up, inTop);
  EXPECT_DOUBLE_EQ(inTop[0], 80);
  EXPECT_DOUBLE_EQ(inTop[1], 10);
  EXPECT_DOUBLE_EQ(inTop[2], 30);
  ProPntTrfEval(inTop, down, back);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(back[i], corner[i], 1e-9);
}

TEST_F(SimGeometry, OutlineHoldsActiveComponentsUnderTheMatrixAndDatumsUnlessExcluded) {
  ProMatrix identity{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  Pro3dPnt outline[2];
  ASSERT_EQ(ProSolidOutlineCompute(pair, identity, nullptr, 0, outline), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(outline[0][0], 0);
  EXPECT_DOUBLE_EQ(outline[1][0], 100);
  EXPECT_DOUBLE_EQ(outline[1][1], 20);
  identity[3][2] = 5;
  ProMatrix& moved = identity;
  ProSolidOutlExclTypes planes[] = {PRO_OUTL_EXC_DATUM_PLANE};
  dir.Write("work/lifted.prt", ModelJson("part", R"("surfaces": [{"min": [1, 1, 1], "max": [2, 2, 2]}],
    "features": [{"id": 1, "type": "DATUM_PLANE"}])"));
  ProSolid lifted = static_cast<ProSolid>(Load(dir.Wide("work/lifted.prt")));
  ASSERT_EQ(ProSolidOutlineCompute(lifted, moved, nullptr, 0, outline), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(outline[0][2], 5) << "the datum plane at the origin counts";
  ASSERT_EQ(ProSolidOutlineCompute(lifted, moved, planes, 1, outline), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(outline[0][2], 6);
}

TEST_F(SimGeometry, MassPropertiesTakeDensityTimesVolumeWithoutAMass) {
  ProMassProperty properties{};
  ASSERT_EQ(ProSolidMassPropertyGet(block, nullptr, &properties), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(properties.mass, 12);
  EXPECT_DOUBLE_EQ(properties.center_of_gravity[2], 15);
  EXPECT_DOUBLE_EQ(properties.coor_sys_inertia_tensor[0][1], 4);
  double density = 0;
  ASSERT_EQ(ProPartDensityGet(block, &density), PRO_TK_NO_ERROR);
  EXPECT_DOUBLE_EQ(density, 0.002);
  EXPECT_EQ(ProSolidMassPropertyGet(pair, nullptr, &properties), PRO_TK_GENERAL_ERROR) << "no mass data";
}

TEST_F(SimGeometry, SelectionBufferTakesOnlyWhatAWindowShows) {
  ProModelitem feature{PRO_FEATURE, 3, pair};
  ProAsmcomppath context{pair, {-1}, 0};
  ProSelection selection = nullptr;
  ASSERT_EQ(ProSelectionAlloc(&context, &feature, &selection), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProSelbufferSelectionAdd(selection), PRO_TK_NOT_DISPLAYED);
  ASSERT_TRUE(sim::SetCurrentModel(pair));
  ASSERT_EQ(ProSelbufferSelectionAdd(selection), PRO_TK_NO_ERROR);
  auto buffer = sim::SelectionBuffer();
  ASSERT_EQ(buffer.size(), 1u);
  EXPECT_EQ(buffer[0].item.id, 3);
  EXPECT_EQ(ProSelbufferClear(), PRO_TK_NO_ERROR);
  EXPECT_TRUE(sim::SelectionBuffer().empty());
  EXPECT_EQ(ProSelectionFree(&selection), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProSelectionFree(&selection), PRO_TK_BAD_INPUTS);
}

}  // namespace
