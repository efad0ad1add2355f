// STEP and IGES files out of the simulated host, read back with Open
// CASCADE's own readers: solids, product names and the overall box against
// the host's outline of the model, and the host's log beside each file.
#include "HostControl.h"
#include "ProDrawing.h"
#include "ProIntf3Dexport.h"
#include "ProMdl.h"
#include "ProSolid.h"
#include "SimTest.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <IGESCAFControl_Reader.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <BRep_Builder.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <array>
#include <cwchar>
#include <set>
#include <string>

namespace {

struct ReadBack {
  bool read = false;
  int solids = 0;
  bool assembly = false;           // the file's first product holds components
  std::set<std::string> products;  // every product's name, the top one's included
  std::array<double, 6> box{};     // min x y z, max x y z
};

std::string Name(const TDF_Label& label) {
  Handle(TDataStd_Name) name;
  if (!label.FindAttribute(TDataStd_Name::GetID(), name)) return "";
  return TCollection_AsciiString(name->Get(), '?').ToCString();
}

void CollectProducts(const Handle(XCAFDoc_ShapeTool) & tool, const TDF_Label& label,
                     std::set<std::string>& names) {
  names.insert(Name(label));
  TDF_LabelSequence components;
  tool->GetComponents(label, components);
  for (const TDF_Label& component : components) {
    TDF_Label product;
    if (tool->GetReferredShape(component, product)) CollectProducts(tool, product, names);
  }
}

template <class Reader>
ReadBack Read(const std::filesystem::path& file) {
  ReadBack result;
  Handle(TDocStd_Document) document;
  XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", document);
  Reader reader;
  reader.SetNameMode(Standard_True);
  if (reader.ReadFile(file.string().c_str()) != IFSelect_RetDone || !reader.Transfer(document)) return result;
  Handle(XCAFDoc_ShapeTool) tool = XCAFDoc_DocumentTool::ShapeTool(document->Main());
  TDF_LabelSequence free;
  tool->GetFreeShapes(free);
  BRep_Builder builder;
  TopoDS_Compound all;
  builder.MakeCompound(all);
  for (const TDF_Label& label : free) {
    CollectProducts(tool, label, result.products);
    builder.Add(all, tool->GetShape(label));
  }
  result.assembly = !free.IsEmpty() && tool->IsAssembly(free.First());
  for (TopExp_Explorer solid(all, TopAbs_SOLID); solid.More(); solid.Next()) ++result.solids;
  Bnd_Box box;
  BRepBndLib::AddOptimal(all, box, Standard_False, Standard_False);
  box.Get(result.box[0], result.box[1], result.box[2], result.box[3], result.box[4], result.box[5]);
  XCAFApp_Application::GetApplication()->Close(document);
  result.read = true;
  return result;
}

// The plug-in's sequence of calls for an export of solids and quilts.
ProError Export(ProSolid solid, ProIntf3DExportType type, const std::wstring& path,
                ProOutputAssemblyConfiguration configuration) {
  ProOutputBrepRepresentation representation = nullptr;
  ProOutputLayerOptions layers = nullptr;
  ProOutputInclusion inclusion = nullptr;
  EXPECT_EQ(ProOutputBrepRepresentationAlloc(&representation), PRO_TK_NO_ERROR);
  ProOutputBrepRepresentationFlagsSet(representation, PRO_B_FALSE, PRO_B_FALSE, PRO_B_TRUE, PRO_B_TRUE);
  ProOutputLayerOptionsAlloc(&layers);
  ProOutputLayerOptionsAutoidSet(layers, PRO_B_TRUE);
  ProOutputInclusionAlloc(&inclusion);
  ProOutputInclusionFlagsSet(inclusion, PRO_B_FALSE, PRO_B_FALSE, PRO_B_FALSE);
  ProPath buffer{};
  path.copy(buffer, PRO_PATH_SIZE - 1);
  ProError status =
      ProIntf3DFileWrite(solid, type, buffer, configuration, nullptr, representation, inclusion, layers);
  EXPECT_EQ(ProOutputLayerOptionsFree(layers), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProOutputInclusionFree(inclusion), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProOutputBrepRepresentationFree(representation), PRO_TK_NO_ERROR);
  return status;
}

std::array<double, 6> Outline(ProSolid solid) {
  ProMatrix identity{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  ProSolidOutlExclTypes datums[] = {PRO_OUTL_EXC_DATUM_PLANE, PRO_OUTL_EXC_DATUM_POINT,
                                    PRO_OUTL_EXC_DATUM_CSYS, PRO_OUTL_EXC_DATUM_AXES};
  Pro3dPnt points[2];
  EXPECT_EQ(ProSolidOutlineCompute(solid, identity, datums, 4, points), PRO_TK_NO_ERROR);
  return {points[0][0], points[0][1], points[0][2], points[1][0], points[1][1], points[1][2]};
}

void ExpectBox(const std::array<double, 6>& actual, const std::array<double, 6>& expected) {
  for (int i = 0; i < 6; ++i) EXPECT_NEAR(actual[i], expected[i], 1e-6) << "coordinate " << i;
}

// A shaft of two boxes with volume, a flat end face and a line; a plate of
// six flat faces only, as the sample's walls are; a sub-assembly holding the
// shaft; and a gearbox of the plate, the shaft turned a quarter about z and
// moved to the plate's edge, the sub-assembly moved down, and a suppressed
// shaft far away. The turned shaft and the sub-assembly stick out of the
// plate, so that their placements shape the outline.
class SimIntf3DExport : public SimTest {
 protected:
  SimIntf3DExport() {
    dir.Write("work/shaft.prt", ModelJson("part", R"("surfaces": [
      {"min": [-15, 0, -15], "max": [15, 16, 15]}, {"min": [-15, 0, -15], "max": [15, 0, 15]},
      {"min": [-18, 16, -18], "max": [18, 26, 18]}, {"min": [0, 0, 0], "max": [0, 0, 5]}])"));
    dir.Write("work/plate.prt", ModelJson("part", R"("surfaces": [
      {"min": [0, 0, 0], "max": [0, 50, 10]}, {"min": [100, 0, 0], "max": [100, 50, 10]},
      {"min": [0, 0, 0], "max": [100, 0, 10]}, {"min": [0, 50, 0], "max": [100, 50, 10]},
      {"min": [0, 0, 0], "max": [100, 50, 0]}, {"min": [0, 0, 10], "max": [100, 50, 10]}])"));
    dir.Write("work/sub.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "shaft.prt"}])"));
    dir.Write("work/gearbox.asm", ModelJson("assembly", R"("components": [
      {"id": 1, "model": "plate.prt"},
      {"id": 2, "model": "shaft.prt", "transform": [[0, 1, 0, 0], [-1, 0, 0, 0], [0, 0, 1, 0], [100, 25, 10, 1]]},
      {"id": 3, "model": "sub.asm", "transform": [[1, 0, 0, 0], [0, 1, 0, 0], [0, 0, 1, 0], [0, 0, -40, 1]]},
      {"id": 4, "model": "shaft.prt", "suppressed": true,
       "transform": [[1, 0, 0, 0], [0, 1, 0, 0], [0, 0, 1, 0], [900, 0, 0, 1]]}])"));
    gearbox = static_cast<ProSolid>(Load(dir.Wide("work/gearbox.asm")));
    shaft = static_cast<ProSolid>(Load(dir.Wide("work/shaft.prt")));
    std::filesystem::create_directories(dir.path() / "out");
  }

  bool Exists(const std::string& relative) const { return std::filesystem::exists(dir.path() / relative); }

  ProSolid gearbox = nullptr;
  ProSolid shaft = nullptr;
};

TEST_F(SimIntf3DExport, PartToStepHoldsItsSolidsUnderItsNameWithinItsOutline) {
  ASSERT_EQ(Export(shaft, PRO_INTF_EXPORT_STEP, dir.Wide("out/SHAFT"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_NO_ERROR);
  ReadBack step = Read<STEPCAFControl_Reader>(dir.path() / "out/SHAFT.stp");
  ASSERT_TRUE(step.read);
  EXPECT_EQ(step.solids, 2);
  EXPECT_FALSE(step.assembly);
  EXPECT_EQ(step.products, std::set<std::string>{"SHAFT"});
  ExpectBox(step.box, Outline(shaft));
  // AP214's schema, by its name in the file's header.
  EXPECT_NE(dir.Read("out/SHAFT.stp").find("FILE_SCHEMA(('AUTOMOTIVE_DESIGN"), std::string::npos);
  EXPECT_TRUE(Exists("out/SHAFT__out.log.1"));
}

TEST_F(SimIntf3DExport, AssemblyToStepKeepsItsProductsAndPlacements) {
  ASSERT_EQ(Export(gearbox, PRO_INTF_EXPORT_STEP, dir.Wide("out\\GEARBOX"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_NO_ERROR);
  ReadBack step = Read<STEPCAFControl_Reader>(dir.path() / "out/GEARBOX.stp");
  ASSERT_TRUE(step.read);
  EXPECT_TRUE(step.assembly);
  // The shaft twice (once through the sub-assembly); the suppressed one not.
  EXPECT_EQ(step.solids, 4);
  EXPECT_EQ(step.products, (std::set<std::string>{"GEARBOX", "PLATE", "SHAFT", "SUB"}));
  ExpectBox(step.box, Outline(gearbox));
  EXPECT_TRUE(Exists("out/GEARBOX__out.log.1"));
}

TEST_F(SimIntf3DExport, FlatStepAndIgesHoldTheSameSolidsWithoutStructure) {
  ASSERT_EQ(Export(gearbox, PRO_INTF_EXPORT_STEP, dir.Wide("out/FLAT"), PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_NO_ERROR);
  ASSERT_EQ(Export(gearbox, PRO_INTF_EXPORT_IGES, dir.Wide("out/GEARBOX"), PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_NO_ERROR);
  ReadBack flat = Read<STEPCAFControl_Reader>(dir.path() / "out/FLAT.stp");
  ReadBack iges = Read<IGESCAFControl_Reader>(dir.path() / "out/GEARBOX.igs");
  ASSERT_TRUE(flat.read);
  ASSERT_TRUE(iges.read);
  EXPECT_FALSE(flat.assembly);
  EXPECT_EQ(flat.products, std::set<std::string>{"GEARBOX"});
  EXPECT_EQ(flat.solids, 4);
  EXPECT_EQ(iges.solids, 4);
  ExpectBox(flat.box, Outline(gearbox));
  ExpectBox(iges.box, Outline(gearbox));
  // The host names an assembly's log by the format.
  EXPECT_TRUE(Exists("out/FLAT__out.log.1"));
  EXPECT_TRUE(Exists("out/GEARBOX_asm__out.log.1"));
  EXPECT_FALSE(Exists("out/GEARBOX__out.log.1"));
}

TEST_F(SimIntf3DExport, PartToIgesHoldsItsSolids) {
  ASSERT_EQ(Export(shaft, PRO_INTF_EXPORT_IGES, dir.Wide("out/SHAFT"), PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_NO_ERROR);
  ReadBack iges = Read<IGESCAFControl_Reader>(dir.path() / "out/SHAFT.igs");
  ASSERT_TRUE(iges.read);
  EXPECT_EQ(iges.solids, 2);
  ExpectBox(iges.box, Outline(shaft));
  EXPECT_TRUE(Exists("out/SHAFT__out.log.1"));
}

TEST_F(SimIntf3DExport, LogsAreNumberedAboveTheHighestThere) {
  dir.Write("out/shaft__out.log.3", "an earlier export\n");
  dir.Write("out/SHAFT__out.log.x", "not a version\n");
  ASSERT_EQ(Export(shaft, PRO_INTF_EXPORT_STEP, dir.Wide("out/SHAFT"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_NO_ERROR);
  ASSERT_EQ(Export(shaft, PRO_INTF_EXPORT_STEP, dir.Wide("out/SHAFT"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_NO_ERROR);
  EXPECT_TRUE(Exists("out/SHAFT__out.log.4"));
  EXPECT_TRUE(Exists("out/SHAFT__out.log.5"));
  EXPECT_FALSE(Exists("out/SHAFT__out.log.1"));
  EXPECT_NE(dir.Read("out/SHAFT__out.log.5").find("SHAFT.stp"), std::string::npos);
}

TEST_F(SimIntf3DExport, SurfacesWithoutSolidsLeaveTheOutline) {
  ProOutputBrepRepresentation surfaces = nullptr;
  ProOutputBrepRepresentationAlloc(&surfaces);
  ProOutputBrepRepresentationFlagsSet(surfaces, PRO_B_FALSE, PRO_B_TRUE, PRO_B_FALSE, PRO_B_FALSE);
  ProPath path{};
  dir.Wide("out/SHAFT").copy(path, PRO_PATH_SIZE - 1);
  ASSERT_EQ(ProIntf3DFileWrite(shaft, PRO_INTF_EXPORT_STEP, path, PRO_OUTPUT_ASSEMBLY_SINGLE_FILE, nullptr,
                               surfaces, nullptr, nullptr),
            PRO_TK_NO_ERROR);
  ProOutputBrepRepresentationFree(surfaces);
  ReadBack step = Read<STEPCAFControl_Reader>(dir.path() / "out/SHAFT.stp");
  ASSERT_TRUE(step.read);
  EXPECT_EQ(step.solids, 0);
  ExpectBox(step.box, Outline(shaft));
}

TEST_F(SimIntf3DExport, ConfigurationQueriesTellWhatIsWritten) {
  auto supported = [](int type, int configuration) {
    ProBoolean result = PRO_B_FALSE;
    ProError status = ProOutputAssemblyConfigurationIsSupported(
        static_cast<ProIntf3DExportType>(type), static_cast<ProOutputAssemblyConfiguration>(configuration),
        &result);
    return status == PRO_TK_NO_ERROR ? result : -1;
  };
  EXPECT_EQ(supported(PRO_INTF_EXPORT_STEP, PRO_OUTPUT_ASSEMBLY_SINGLE_FILE), PRO_B_TRUE);
  EXPECT_EQ(supported(PRO_INTF_EXPORT_STEP, PRO_OUTPUT_ASSEMBLY_FLAT_FILE), PRO_B_TRUE);
  EXPECT_EQ(supported(PRO_INTF_EXPORT_STEP, PRO_OUTPUT_ASSEMBLY_PARTS), PRO_B_FALSE);
  EXPECT_EQ(supported(PRO_INTF_EXPORT_IGES, PRO_OUTPUT_ASSEMBLY_FLAT_FILE), PRO_B_TRUE);
  EXPECT_EQ(supported(PRO_INTF_EXPORT_IGES, PRO_OUTPUT_ASSEMBLY_SINGLE_FILE), PRO_B_FALSE);
  ProBoolean result = PRO_B_TRUE;
  EXPECT_EQ(
      ProOutputAssemblyConfigurationIsSupported(PRO_INTF_EXPORT_JT, PRO_OUTPUT_ASSEMBLY_MULTI_FILES, &result),
      PRO_TK_INVALID_TYPE);
  EXPECT_EQ(ProOutputAssemblyConfigurationIsSupported(static_cast<ProIntf3DExportType>(99),
                                                      PRO_OUTPUT_ASSEMBLY_FLAT_FILE, &result),
            PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProOutputAssemblyConfigurationIsSupported(
                PRO_INTF_EXPORT_STEP, static_cast<ProOutputAssemblyConfiguration>(7), &result),
            PRO_TK_BAD_INPUTS);
}

TEST_F(SimIntf3DExport, RepresentationQueriesNeedFacesAndALiveRepresentation) {
  ProOutputBrepRepresentation representation = nullptr;
  ASSERT_EQ(ProOutputBrepRepresentationAlloc(&representation), PRO_TK_NO_ERROR);
  ProBoolean result = PRO_B_TRUE;
  ASSERT_EQ(
      ProOutputBrepRepresentationFlagsSet(representation, PRO_B_TRUE, PRO_B_FALSE, PRO_B_FALSE, PRO_B_FALSE),
      PRO_TK_NO_ERROR);
  ASSERT_EQ(ProOutputBrepRepresentationIsSupported(PRO_INTF_EXPORT_STEP, representation, &result),
            PRO_TK_NO_ERROR);
  EXPECT_EQ(result, PRO_B_FALSE);
  ProOutputBrepRepresentationFlagsSet(representation, PRO_B_FALSE, PRO_B_FALSE, PRO_B_TRUE, PRO_B_TRUE);
  ASSERT_EQ(ProOutputBrepRepresentationIsSupported(PRO_INTF_EXPORT_IGES, representation, &result),
            PRO_TK_NO_ERROR);
  EXPECT_EQ(result, PRO_B_TRUE);
  EXPECT_EQ(ProOutputBrepRepresentationIsSupported(PRO_INTF_EXPORT_PARASOLID, representation, &result),
            PRO_TK_INVALID_TYPE);
  ASSERT_EQ(ProOutputBrepRepresentationFree(representation), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProOutputBrepRepresentationIsSupported(PRO_INTF_EXPORT_STEP, representation, &result),
            PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProOutputBrepRepresentationFree(representation), PRO_TK_BAD_INPUTS);
}

TEST_F(SimIntf3DExport, RefusesADrawingAndTypesItDoesNotWrite) {
  dir.Write("work/plan.drw", ModelJson("drawing", R"("solids": ["gearbox.asm"])"));
  auto drawing = static_cast<ProSolid>(Load(dir.Wide("work/plan.drw")));
  EXPECT_EQ(Export(drawing, PRO_INTF_EXPORT_STEP, dir.Wide("out/PLAN"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Export(shaft, static_cast<ProIntf3DExportType>(0), dir.Wide("out/SHAFT"),
                   PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Export(shaft, PRO_INTF_EXPORT_SAT, dir.Wide("out/SHAFT"), PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_INVALID_TYPE);
  EXPECT_EQ(Export(gearbox, PRO_INTF_EXPORT_IGES, dir.Wide("out/GEARBOX"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_BAD_INPUTS);
  EXPECT_TRUE(std::filesystem::is_empty(dir.path() / "out"));
}

TEST_F(SimIntf3DExport, RefusesADirectoryItCannotWriteIn) {
  dir.Write("out/file", "a file, not a directory\n");
  EXPECT_EQ(Export(shaft, PRO_INTF_EXPORT_STEP, dir.Wide("out/file/SHAFT"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_CANT_WRITE);
  EXPECT_EQ(Export(shaft, PRO_INTF_EXPORT_IGES, dir.Wide("out/missing/SHAFT"), PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_CANT_WRITE);
  EXPECT_FALSE(Exists("out/missing"));
  EXPECT_FALSE(Exists("out/SHAFT__out.log.1"));
}

// The sample reducer: walls of flat faces, parts without geometry, turned
// and suppressed components, standard parts found along the search path.
TEST(SimIntf3DExportSample, ReducerToStepAndIgesKeepsItsOutline) {
  TestDir dir;
  sim::StartHost({dir.path()});
  ASSERT_EQ(sim::LoadSession(std::filesystem::path(BOM_SAMPLES_DIR) / "reducer"), PRO_TK_NO_ERROR);
  ProMdl current = nullptr;
  ASSERT_EQ(ProMdlCurrentGet(&current), PRO_TK_NO_ERROR);
  auto reducer = static_cast<ProSolid>(current);
  ASSERT_EQ(Export(reducer, PRO_INTF_EXPORT_STEP, dir.Wide("REDUCER"), PRO_OUTPUT_ASSEMBLY_SINGLE_FILE),
            PRO_TK_NO_ERROR);
  ASSERT_EQ(Export(reducer, PRO_INTF_EXPORT_IGES, dir.Wide("REDUCER"), PRO_OUTPUT_ASSEMBLY_FLAT_FILE),
            PRO_TK_NO_ERROR);
  ReadBack step = Read<STEPCAFControl_Reader>(dir.path() / "REDUCER.stp");
  ReadBack iges = Read<IGESCAFControl_Reader>(dir.path() / "REDUCER.igs");
  ASSERT_TRUE(step.read);
  ASSERT_TRUE(iges.read);
  EXPECT_TRUE(step.assembly);
  EXPECT_TRUE(step.products.count("REDUCER"));
  EXPECT_TRUE(step.products.count("HOUSING"));
  EXPECT_TRUE(step.products.count("GB5782_M8X30"));
  EXPECT_GT(step.solids, 0);
  EXPECT_EQ(iges.solids, step.solids);
  ExpectBox(step.box, Outline(reducer));
  ExpectBox(iges.box, Outline(reducer));
}

}  // namespace
