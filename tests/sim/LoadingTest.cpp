// Models entering the session: files found by name and version, components
// and solids resolved, models built in code, handles outliving a session.
#include "Inspection.h"
#include "ProAsmcomp.h"
#include "ProMdl.h"
#include "ProWstring.h"
#include "SimTest.h"

namespace {

class SimLoading : public SimTest {
 protected:
  ProMdl ComponentModel(ProMdl owner, int id, ProError expected = PRO_TK_NO_ERROR) {
    ProAsmcomp component{PRO_FEATURE, id, owner};
    ProMdl mdl = nullptr;
    EXPECT_EQ(ProAsmcompMdlGet(&component, &mdl), expected);
    return mdl;
  }
};

TEST_F(SimLoading, HighestVersionWinsUnlessThePathNamesOne) {
  dir.Write("work/bolt.prt.2", ModelJson("part"));
  dir.Write("work/BOLT.prt.3", ModelJson("part"));
  dir.Write("work/bolt.prt.10", ModelJson("part"));
  dir.Write("work/bolt.prt", ModelJson("part"));
  ProMdl named = Load(dir.Wide("work/bolt.prt.2"));
  EXPECT_EQ(Origin(named), dir.Wide("work/bolt.prt.2"));

  sim::StartHost({dir.path() / "work"});
  ProMdl latest = Load(L"Bolt.Prt");
  EXPECT_EQ(Origin(latest), dir.Wide("work/bolt.prt.10"));
  EXPECT_EQ(Name(latest), L"BOLT");
}

TEST_F(SimLoading, NameKeyTypeAndCommonNameComeFromTheFile) {
  dir.Write("work/nut.prt.1", ModelJson("part", R"("name": "Nut_M8", "commonName": "六角螺母")"));
  ProMdl nut = Load(L"NUT.PRT");
  EXPECT_EQ(Name(nut), L"Nut_M8");
  ProMdlType type{};
  EXPECT_EQ(ProMdlTypeGet(nut, &type), PRO_TK_NO_ERROR);
  EXPECT_EQ(type, PRO_MDL_PART);
  wchar_t* common = nullptr;
  ASSERT_EQ(ProMdlCommonnameGet(nut, &common, nullptr), PRO_TK_NO_ERROR);
  EXPECT_STREQ(common, L"六角螺母");
  EXPECT_EQ(ProWstringFree(common), PRO_TK_NO_ERROR);
  EXPECT_EQ(Load(L"nut_m8.prt"), nut) << "the model in session is answered as it is";
}

TEST_F(SimLoading, BareNamesAreFoundInWorkingDirThenSessionDirThenSearchPath) {
  dir.Write("session/session.json", R"({"searchPath": ["lib"]})");
  for (std::string where : {"work", "session", "session/lib"}) dir.Write(where + "/a.prt", ModelJson("part"));
  for (std::string where : {"session", "session/lib"}) dir.Write(where + "/b.prt", ModelJson("part"));
  dir.Write("session/lib/c.prt", ModelJson("part"));
  ASSERT_EQ(sim::LoadSession(dir.path() / "session"), PRO_TK_NO_ERROR);

  EXPECT_EQ(Origin(Load(L"a.prt")), dir.Wide("work/a.prt"));
  EXPECT_EQ(Origin(Load(L"b.prt")), dir.Wide("session/b.prt"));
  EXPECT_EQ(Origin(Load(L"c.prt")), dir.Wide("session/lib/c.prt"));
}

TEST_F(SimLoading, FailuresAnswerTheHostsStatuses) {
  dir.Write("work/broken.prt", "{\"type\": ");
  dir.Write("work/odd.prt", ModelJson("widget"));
  dir.Write("work/wrong.prt", ModelJson("assembly"));
  dir.Write("work/box.asm", ModelJson("assembly"));
  Load(L"", PRO_TK_BAD_INPUTS);
  Load(L"missing.prt", PRO_TK_E_NOT_FOUND);
  Load(L"broken.prt", PRO_TK_INVALID_FILE);
  Load(L"odd.prt", PRO_TK_INVALID_FILE);
  Load(L"wrong.prt", PRO_TK_INVALID_TYPE);
  ProMdl mdl = nullptr;
  wchar_t box[] = L"box.asm";
  EXPECT_EQ(ProMdlFiletypeLoad(box, PRO_MDLFILE_PART, PRO_B_FALSE, &mdl), PRO_TK_INVALID_TYPE);
  EXPECT_EQ(ProMdlFiletypeLoad(box, PRO_MDLFILE_ASSEMBLY, PRO_B_FALSE, &mdl), PRO_TK_NO_ERROR);
  EXPECT_EQ(sim::SessionModels().size(), 1u);
}

TEST_F(SimLoading, AssemblyLoadsItsComponentsAndKeepsMissingOnesUnresolved) {
  dir.Write("work/top.asm.1", ModelJson("assembly", R"("components": [
      {"id": 2, "model": "bolt.prt"}, {"id": 4, "model": "gone.prt"}],
      "features": [{"id": 3, "type": "DATUM_PLANE"}])"));
  dir.Write("work/bolt.prt.7", ModelJson("part"));
  ProMdl top = Load(L"top.asm");
  EXPECT_EQ(Name(ComponentModel(top, 2)), L"BOLT");
  ComponentModel(top, 4, PRO_TK_E_NOT_FOUND);
  ComponentModel(top, 3, PRO_TK_E_NOT_FOUND);
  ComponentModel(nullptr, 2, PRO_TK_BAD_INPUTS);
  EXPECT_EQ(sim::SessionModels().size(), 2u);
}

TEST_F(SimLoading, DrawingLoadsItsSolids) {
  dir.Write("work/top.drw.2", ModelJson("drawing", R"("solids": ["shaft.prt"])"));
  dir.Write("work/shaft.prt.1", ModelJson("part"));
  ProMdl drawing = Load(L"top.drw");
  ProMdlType type{};
  ASSERT_EQ(ProMdlTypeGet(drawing, &type), PRO_TK_NO_ERROR);
  EXPECT_EQ(type, PRO_MDL_DRAWING);
  std::vector<sim::SessionModel> models = sim::SessionModels();
  ASSERT_EQ(models.size(), 2u);
  EXPECT_EQ(models[1].fileName, L"shaft.prt.1");
}

TEST_F(SimLoading, ModelsBuiltInCodeMayDifferOnlyInCase) {
  sim::ModelDef part;
  part.name = L"bolt";
  ProMdl lower = sim::AddModel(L"bolt.prt", part);
  part.name = L"Bolt";
  ProMdl mixed = sim::AddModel(L"Bolt.prt", part);
  sim::ModelDef assembly;
  assembly.type = PRO_MDL_ASSEMBLY;
  assembly.components = {{1, L"Bolt.prt"}, {2, L"bolt.prt"}};
  ProMdl top = sim::AddModel(L"top.asm", assembly);

  EXPECT_EQ(Name(lower), L"bolt");
  EXPECT_EQ(Name(mixed), L"Bolt");
  EXPECT_EQ(Origin(lower), L"");
  EXPECT_EQ(ComponentModel(top, 1), mixed);
  EXPECT_EQ(ComponentModel(top, 2), lower);
}

TEST_F(SimLoading, HandlesOfAnEarlierSessionAreUnknown) {
  ProMdl old = sim::AddModel(L"old.prt", {});
  sim::StartHost({dir.path() / "work"});
  ProMdlType type{};
  ProMdlName name{};
  EXPECT_EQ(ProMdlTypeGet(old, &type), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProMdlMdlnameGet(old, name), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProMdlDisplay(old), PRO_TK_INVALID_PTR);
}

TEST_F(SimLoading, SessionFileOpensModelsAndShowsTheCurrentOne) {
  dir.Write("session/session.json", R"({"open": ["a.prt"], "current": "top.asm",
      "configOptions": {"Pro_Library_Dir": "/lib"}})");
  dir.Write("session/a.prt", ModelJson("part"));
  dir.Write("session/top.asm.3", ModelJson("assembly"));
  ASSERT_EQ(sim::LoadSession(dir.path() / "session"), PRO_TK_NO_ERROR);
  ProMdl current = nullptr;
  ASSERT_EQ(ProMdlCurrentGet(&current), PRO_TK_NO_ERROR);
  EXPECT_EQ(Name(current), L"TOP");
  EXPECT_EQ(sim::ConfigOptions().at(L"pro_library_dir"), L"/lib");
  EXPECT_EQ(sim::LoadSession(dir.path() / "nowhere"), PRO_TK_E_NOT_FOUND);
}

}  // namespace
