// Models on disk and in session: saving new versions, backups, version data,
// renaming, common names, modification, erasing, the session lists and the
// unit systems.
#include "HostControl.h"
#include "Inspection.h"
#include "ProArray.h"
#include "ProMdl.h"
#include "ProMdlUnits.h"
#include "ProSolid.h"
#include "ProWindows.h"
#include "SimTest.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <set>
#include <vector>

namespace fs = std::filesystem;

namespace {

class SimModelFile : public SimTest {
 protected:
  nlohmann::json FileJson(const std::string& relative) const {
    return nlohmann::json::parse(dir.Read(relative));
  }
  bool Modified(ProMdl mdl) const {
    ProBoolean modified = PRO_B_FALSE;
    EXPECT_EQ(ProMdlModificationVerify(mdl, &modified), PRO_TK_NO_ERROR);
    return modified == PRO_B_TRUE;
  }
  int Version(ProMdl mdl) const {
    ProMdldata data{};
    EXPECT_EQ(ProMdlDataGet(mdl, &data), PRO_TK_NO_ERROR);
    return data.version;
  }
};

TEST_F(SimModelFile, SaveWritesTheNextVersionBesideTheOriginKeepingEveryKey) {
  dir.Write("work/lib/shaft.prt.2",
            ModelJson("part", R"("density": 7.85e-6, "vendorKey": {"kept": [1, 2]}, "relations": ["d1=2"])"));
  ProMdl shaft = Load(dir.Wide("work/lib/shaft.prt"));
  ASSERT_EQ(ProMdlSave(shaft), PRO_TK_NO_ERROR);
  EXPECT_EQ(Origin(shaft), dir.Wide("work/lib/shaft.prt.3"));
  EXPECT_EQ(Version(shaft), 3);
  nlohmann::json saved = FileJson("work/lib/shaft.prt.3");
  EXPECT_EQ(saved["type"], "part");
  EXPECT_EQ(saved["vendorKey"]["kept"], nlohmann::json({1, 2}));
  EXPECT_EQ(saved["relations"], nlohmann::json({"d1=2"}));
  EXPECT_TRUE(fs::exists(dir.path() / "work/lib/shaft.prt.2")) << "older versions stay";

  sim::StartHost({dir.path() / "work"});
  EXPECT_EQ(Origin(Load(dir.Wide("work/lib/shaft.prt"))), dir.Wide("work/lib/shaft.prt.3"));
}

TEST_F(SimModelFile, SaveOfANewModelStartsAtOneInTheCurrentDirectoryAndNeverOverwritesAHigherVersion) {
  ProMdl part = sim::AddModel(L"new_part.prt", {});
  ASSERT_EQ(ProMdlSave(part), PRO_TK_NO_ERROR);
  EXPECT_EQ(Origin(part), dir.Wide("work/new_part.prt.1"));
  dir.Write("work/new_part.prt.5", ModelJson("part"));
  ASSERT_EQ(ProMdlSave(part), PRO_TK_NO_ERROR);
  EXPECT_EQ(Origin(part), dir.Wide("work/new_part.prt.6"));
}

TEST_F(SimModelFile, ModificationIsAChangeSinceLoadOrSave) {
  dir.Write("work/a.prt.1", ModelJson("part"));
  ProMdl a = Load(L"a.prt");
  EXPECT_FALSE(Modified(a));
  wchar_t common[] = L"轴承座";
  ASSERT_EQ(ProMdlCommonnameSet(a, common), PRO_TK_NO_ERROR);
  EXPECT_TRUE(Modified(a));
  ASSERT_EQ(ProMdlSave(a), PRO_TK_NO_ERROR);
  EXPECT_FALSE(Modified(a));
  EXPECT_EQ(FileJson("work/a.prt.2")["commonName"], "轴承座");
  ASSERT_EQ(ProSolidRegenerate(static_cast<ProSolid>(a), PRO_REGEN_NO_FLAGS), PRO_TK_NO_ERROR);
  EXPECT_FALSE(Modified(a)) << "nothing to rebuild, nothing changed";
}

TEST_F(SimModelFile, DataGivesNameTypeDirectoryAndVersion) {
  dir.Write("work/gear.prt.4", ModelJson("part", R"("subtype": 2)"));
  ProMdl gear = Load(L"gear.prt");
  ProMdldata data{};
  ASSERT_EQ(ProMdlDataGet(gear, &data), PRO_TK_NO_ERROR);
  EXPECT_STREQ(data.name, L"GEAR");
  EXPECT_STREQ(data.type, L"PRT");
  EXPECT_EQ(data.path, dir.Wide("work"));
  EXPECT_EQ(data.version, 4);
  EXPECT_EQ(data.subclass, 2);
  EXPECT_EQ(ProMdlDataGet(nullptr, &data), PRO_TK_BAD_INPUTS);
}

TEST_F(SimModelFile, BackupWritesTheModelUnderItsNameAndVersionIntoTheDirectory) {
  dir.Write("work/cover.prt.3", ModelJson("part", R"("extra": true)"));
  fs::create_directories(dir.path() / "backup");
  ProMdl cover = Load(L"cover.prt");
  std::wstring target = dir.Wide("backup");
  ProPath path{};
  target.copy(path, PRO_PATH_SIZE - 1);
  ASSERT_EQ(ProMdlnameBackup(cover, path), PRO_TK_NO_ERROR);
  EXPECT_EQ(FileJson("backup/cover.prt.3")["extra"], true);
  EXPECT_EQ(Origin(cover), dir.Wide("work/cover.prt.3")) << "the model stays where it came from";
  ProPath missing{L"/no/such/dir"};
  EXPECT_EQ(ProMdlnameBackup(cover, missing), PRO_TK_INVALID_DIR);
}

TEST_F(SimModelFile, BackupOfADrawingOrAssemblyTakesEveryModelBelowItOnce) {
  dir.Write("work/bolt.prt.2", ModelJson("part"));
  dir.Write("work/sub.asm.1", ModelJson("assembly", R"("components": [{"id": 1, "model": "bolt.prt"}])"));
  dir.Write("work/top.asm.4", ModelJson("assembly", R"("components": [{"id": 1, "model": "sub.asm"},)"
                                                    R"( {"id": 2, "model": "bolt.prt"}])"));
  dir.Write("work/top.drw.1", ModelJson("drawing", R"("solids": ["top.asm"])"));
  fs::create_directories(dir.path() / "backup");
  ProPath path{};
  dir.Wide("backup").copy(path, PRO_PATH_SIZE - 1);
  ASSERT_EQ(ProMdlnameBackup(Load(L"top.drw"), path), PRO_TK_NO_ERROR);
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(dir.path() / "backup"))
    names.insert(entry.path().filename());
  EXPECT_EQ(names, (std::set<std::string>{"bolt.prt.2", "sub.asm.1", "top.asm.4", "top.drw.1"}));
}

TEST_F(SimModelFile, RenameChangesTheSessionNameAndTheFilesFollowAtTheNextSave) {
  dir.Write("work/old.prt.2", ModelJson("part"));
  dir.Write("work/top.asm.1", ModelJson("assembly", R"("components": [{"id": 5, "model": "old.prt"}])"));
  dir.Write("work/old.drw.1", ModelJson("drawing", R"("solids": ["OLD.PRT"])"));
  ProMdl top = Load(L"top.asm");
  ProMdl drawing = Load(L"old.drw");
  ProMdl part = nullptr;
  ProName oldName{L"old"};
  ASSERT_EQ(ProMdlInit(oldName, PRO_MDL_PART, &part), PRO_TK_NO_ERROR);
  ProMdlName newName{L"New_Part"};
  ASSERT_EQ(ProMdlnameRename(part, newName), PRO_TK_NO_ERROR);
  EXPECT_EQ(Name(part), L"NEW_PART");
  EXPECT_FALSE(fs::exists(dir.path() / "work/new_part.prt.1"));
  EXPECT_TRUE(Modified(top)) << "the assembly refers to the new name";
  EXPECT_TRUE(Modified(drawing));

  ASSERT_EQ(ProMdlSave(part), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMdlSave(top), PRO_TK_NO_ERROR);
  EXPECT_TRUE(fs::exists(dir.path() / "work/new_part.prt.3"));
  EXPECT_TRUE(fs::exists(dir.path() / "work/old.prt.2"));
  EXPECT_EQ(FileJson("work/top.asm.2")["components"][0]["model"], "new_part.prt");
  ASSERT_EQ(ProMdlSave(drawing), PRO_TK_NO_ERROR);
  EXPECT_EQ(FileJson("work/old.drw.2")["solids"][0], "new_part.prt");

  sim::StartHost({dir.path() / "work"});
  EXPECT_EQ(Origin(Load(L"new_part.prt")), dir.Wide("work/new_part.prt.3"));
}

TEST_F(SimModelFile, RenameRefusesBadNamesAndNamesInUse) {
  ProMdl a = sim::AddModel(L"a.prt", {});
  sim::AddModel(L"b.prt", {});
  ProMdlName taken{L"B"};
  ProMdlName dotted{L"a.b"};
  ProMdlName empty{};
  EXPECT_EQ(ProMdlnameRename(a, taken), PRO_TK_BAD_CONTEXT);
  EXPECT_EQ(ProMdlnameRename(a, dotted), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProMdlnameRename(a, empty), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Name(a), L"A");
}

TEST_F(SimModelFile, InitFindsSessionModelsByNameAndType) {
  ProMdl part = sim::AddModel(L"bolt.prt", {});
  ProMdl found = nullptr;
  ProName name{L"BOLT"};
  EXPECT_EQ(ProMdlInit(name, PRO_MDL_PART, &found), PRO_TK_NO_ERROR);
  EXPECT_EQ(found, part);
  EXPECT_EQ(ProMdlInit(name, PRO_MDL_ASSEMBLY, &found), PRO_TK_E_NOT_FOUND);
}

// The batch tools look a reference model up by the file name of its path.
TEST_F(SimModelFile, InitWithoutATypeTakesAFileNameOrFindsAnyType) {
  ProMdl part = sim::AddModel(L"ref.prt", {});
  sim::ModelDef drawing;
  drawing.type = PRO_MDL_DRAWING;
  ProMdl sheet = sim::AddModel(L"sheet.drw", drawing);
  ProMdl found = nullptr;
  ProName versioned{L"REF.prt.3"};
  EXPECT_EQ(ProMdlInit(versioned, PRO_MDL_UNUSED, &found), PRO_TK_NO_ERROR);
  EXPECT_EQ(found, part);
  ProName bare{L"sheet"};
  EXPECT_EQ(ProMdlInit(bare, PRO_MDL_UNUSED, &found), PRO_TK_NO_ERROR);
  EXPECT_EQ(found, sheet);
  ProName otherType{L"ref.asm"};
  EXPECT_EQ(ProMdlInit(otherType, PRO_MDL_UNUSED, &found), PRO_TK_E_NOT_FOUND);
}

// As a tool reads a reference model: loaded by its full versioned path with
// the plug-in's separators, erased again, gone when control returns.
TEST_F(SimModelFile, ModelLoadedByAFullVersionedPathIsErasedWhenControlReturns) {
  dir.Write("work/lib/ref.prt.2", ModelJson("part"));
  dir.Write("work/lib/ref.prt.3", ModelJson("part", R"("commonName": "三")"));
  dir.Write("work/lib/ref.prt.4", ModelJson("part"));
  ProPath path{};
  std::wstring windowsPath = dir.Wide("work") + L"\\lib\\ref.prt.3";
  windowsPath.copy(path, windowsPath.size());
  ProMdl ref = nullptr;
  ASSERT_EQ(ProMdlFiletypeLoad(path, PRO_MDLFILE_UNUSED, PRO_B_FALSE, &ref), PRO_TK_NO_ERROR);
  EXPECT_EQ(Origin(ref), dir.Wide("work/lib/ref.prt.3"));
  EXPECT_EQ(Version(ref), 3);
  ASSERT_EQ(ProMdlErase(ref), PRO_TK_NO_ERROR);
  sim::ReturnToHost();
  EXPECT_TRUE(sim::SessionModels().empty());
}

TEST_F(SimModelFile, EraseTakesEffectWhenControlReturnsAndSparesModelsInUse) {
  dir.Write("work/p.prt.1", ModelJson("part"));
  dir.Write("work/top.asm.1", ModelJson("assembly", R"("components": [{"id": 1, "model": "p.prt"}])"));
  ProMdl top = Load(L"top.asm");
  ProMdl part = sim::OpenModel(L"p.prt");
  ASSERT_TRUE(sim::SetCurrentModel(top));
  EXPECT_EQ(ProMdlErase(part), PRO_TK_E_IN_USE);
  ASSERT_EQ(ProMdlErase(top), PRO_TK_NO_ERROR);
  EXPECT_EQ(sim::SessionModels().size(), 2u);
  sim::ReturnToHost();
  ASSERT_EQ(sim::SessionModels().size(), 1u);
  ProMdl current = nullptr;
  EXPECT_EQ(ProMdlCurrentGet(&current), PRO_TK_BAD_CONTEXT) << "its window is empty now";
  EXPECT_EQ(ProMdlErase(part), PRO_TK_NO_ERROR);
  sim::ReturnToHost();
  EXPECT_TRUE(sim::SessionModels().empty());
}

// A handle is known while its model is in session, and the model's item id
// is its place in load order, through erases and refused loads alike.
TEST_F(SimModelFile, HandlesAndItemIdsFollowTheModelsInSession) {
  auto idOf = [](ProMdl mdl) {
    ProModelitem item{};
    return ProMdlToModelitem(mdl, &item) == PRO_TK_NO_ERROR ? item.id : 0;
  };
  auto known = [](ProMdl mdl) {
    ProMdlType type = PRO_MDL_UNUSED;
    return ProMdlTypeGet(mdl, &type) == PRO_TK_NO_ERROR;
  };
  ProMdl a = sim::AddModel(L"a.prt", {});
  ProMdl b = sim::AddModel(L"b.prt", {});
  ProMdl c = sim::AddModel(L"c.prt", {});
  EXPECT_EQ(std::vector<int>({idOf(a), idOf(b), idOf(c)}), std::vector<int>({1, 2, 3}));

  ASSERT_EQ(ProMdlErase(b), PRO_TK_NO_ERROR);
  sim::ReturnToHost();
  EXPECT_FALSE(known(b));
  EXPECT_EQ(idOf(b), 0);
  EXPECT_EQ(std::vector<int>({idOf(a), idOf(c)}), std::vector<int>({1, 2}));

  dir.Write("work/loop.asm.1", ModelJson("assembly", R"("components": [{"id": 1, "model": "d.prt"},
      {"id": 2, "model": "inner.asm"}])"));
  dir.Write("work/inner.asm.1", ModelJson("assembly", R"("components": [{"id": 1, "model": "loop.asm"}])"));
  dir.Write("work/d.prt.1", ModelJson("part"));
  EXPECT_EQ(sim::OpenModel(L"loop.asm"), nullptr);
  ProMdl d = sim::OpenModel(L"d.prt");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(idOf(d), 3) << "the refused load left nothing behind";
  EXPECT_EQ(sim::SessionModels().size(), 3u);

  sim::StartHost({dir.path() / "work"});
  EXPECT_FALSE(known(a));
  EXPECT_FALSE(known(d));
}

TEST_F(SimModelFile, SessionListGivesOneTypeInLoadOrder) {
  sim::ModelDef assembly;
  assembly.type = PRO_MDL_ASSEMBLY;
  ProMdl b = sim::AddModel(L"b.prt", {});
  sim::AddModel(L"top.asm", assembly);
  ProMdl a = sim::AddModel(L"a.prt", {});
  ProMdl* models = nullptr;
  int count = 0;
  ASSERT_EQ(ProSessionMdlList(PRO_MDL_PART, &models, &count), PRO_TK_NO_ERROR);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(models[0], b);
  EXPECT_EQ(models[1], a);
  EXPECT_EQ(ProArrayFree(reinterpret_cast<ProArray*>(&models)), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProSessionMdlList(PRO_MDL_DRAWING, &models, &count), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(count, 0);
}

TEST_F(SimModelFile, UnitSystemsComeFromTheFileOrTheHostsStandardSet) {
  dir.Write("work/inch.prt.1", ModelJson("part", R"x("unitSystems": ["Inch lbm Second (IPS)", "mmNs"],
                                                     "principalUnitSystem": "Inch lbm Second (IPS)")x"));
  ProMdl inch = Load(L"inch.prt");
  ProUnitsystem principal{};
  ASSERT_EQ(ProMdlPrincipalunitsystemGet(inch, &principal), PRO_TK_NO_ERROR);
  EXPECT_STREQ(principal.name, L"Inch lbm Second (IPS)");
  EXPECT_EQ(principal.owner, inch);

  ProUnitsystem* systems = nullptr;
  ASSERT_EQ(ProMdlUnitsystemsCollect(inch, &systems), PRO_TK_NO_ERROR);
  int count = 0;
  ProArraySizeGet(systems, &count);
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(systems[1].name, L"mmNs");
  // As the parameter check sets it.
  ASSERT_EQ(ProMdlPrincipalunitsystemSet(inch, &systems[1], PRO_UNITCONVERT_SAME_SIZE, PRO_B_FALSE, -1),
            PRO_TK_NO_ERROR);
  ProArrayFree(reinterpret_cast<ProArray*>(&systems));
  EXPECT_TRUE(Modified(inch));
  ASSERT_EQ(ProMdlSave(inch), PRO_TK_NO_ERROR);
  EXPECT_EQ(FileJson("work/inch.prt.2")["principalUnitSystem"], "mmNs");

  ProMdl plain = sim::AddModel(L"plain.prt", {});
  ASSERT_EQ(ProMdlPrincipalunitsystemGet(plain, &principal), PRO_TK_NO_ERROR);
  EXPECT_STREQ(principal.name, L"millimeter Newton Second (mmNs)");
  ProUnitsystem unknown{plain, L"Furlong Firkin Fortnight"};
  EXPECT_EQ(ProMdlPrincipalunitsystemSet(plain, &unknown, PRO_UNITCONVERT_SAME_DIMS, PRO_B_FALSE, -1),
            PRO_TK_E_NOT_FOUND);
}

TEST_F(SimModelFile, CopyGoesAboveTheVersionsInItsDirectoryAndLeavesTheModelAsItWas) {
  dir.Write("work/lib/a.prt.2", ModelJson("part"));
  dir.Write("work/out/a.prt.5", ModelJson("part"));
  ProMdl a = Load(dir.Wide("work/lib/a.prt"));
  wchar_t common[] = L"端盖";
  ASSERT_EQ(ProMdlCommonnameSet(a, common), PRO_TK_NO_ERROR);
  std::optional<fs::path> copy = sim::WriteModelCopy(a, dir.path() / "work/out");
  ASSERT_TRUE(copy);
  EXPECT_EQ(*copy, dir.path() / "work/out/a.prt.6");
  EXPECT_EQ(FileJson("work/out/a.prt.6")["commonName"], "端盖");
  EXPECT_EQ(Origin(a), dir.Wide("work/lib/a.prt.2"));
  EXPECT_EQ(Version(a), 2);
  ASSERT_EQ(sim::SessionModels().size(), 1u);
  EXPECT_TRUE(sim::SessionModels()[0].modified);
  EXPECT_FALSE(sim::WriteModelCopy(a, dir.path() / "work/missing"));
  int local = 0;
  EXPECT_FALSE(sim::WriteModelCopy(&local, dir.path() / "work/out"));
}

}  // namespace
