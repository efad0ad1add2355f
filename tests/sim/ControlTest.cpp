// The control API's scripting: failures, the call log, and
// callbacks that call back into the toolkit from another thread.
#include "CallLog.h"
#include "FaultInjection.h"
#include "Inspection.h"
#include "ProMdl.h"
#include "ProMenuBar.h"
#include "ProSolid.h"
#include "SimTest.h"

#include <future>
#include <thread>

namespace {

using SimControl = SimTest;

ProMdlType TypeOf(ProMdl mdl, ProError expected = PRO_TK_NO_ERROR) {
  ProMdlType type = PRO_MDL_UNUSED;
  EXPECT_EQ(ProMdlTypeGet(mdl, &type), expected);
  return type;
}

TEST_F(SimControl, FailureOnceAnswersTheNextCallOnlyAndDoesNothing) {
  ProMdl part = sim::AddModel(L"p.prt", {});
  sim::FailCall("ProMdlTypeGet", PRO_TK_GENERAL_ERROR, sim::Times::Once);
  EXPECT_EQ(TypeOf(part, PRO_TK_GENERAL_ERROR), PRO_MDL_UNUSED);
  EXPECT_EQ(TypeOf(part), PRO_MDL_PART);

  sim::FailCall("ProMenubarMenuAdd", PRO_TK_E_FOUND, sim::Times::Once);
  char name[] = "New", label[] = "Tools";
  wchar_t file[] = L"none.txt";
  EXPECT_EQ(ProMenubarMenuAdd(name, label, nullptr, PRO_B_TRUE, file), PRO_TK_E_FOUND);
  EXPECT_EQ(sim::MenuBar().size(), 11u);
}

TEST_F(SimControl, FailureAlwaysLastsUntilCleared) {
  ProMdl part = sim::AddModel(L"p.prt", {});
  sim::FailCall("ProMdlTypeGet", PRO_TK_BAD_CONTEXT, sim::Times::Always);
  TypeOf(part, PRO_TK_BAD_CONTEXT);
  TypeOf(part, PRO_TK_BAD_CONTEXT);
  sim::ClearFailures();
  EXPECT_EQ(TypeOf(part), PRO_MDL_PART);
}

TEST_F(SimControl, CallLogKeepsCallsInOrderWithTheirKeyArguments) {
  ProMdl part = sim::AddModel(L"bolt.prt", {});
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  TypeOf(part);
  TypeOf(nullptr, PRO_TK_BAD_INPUTS);
  wchar_t path[] = L"dir\\missing.prt.2";
  ProMdl mdl = nullptr;
  ProMdlFiletypeLoad(path, PRO_MDLFILE_UNUSED, PRO_B_FALSE, &mdl);
  char name[] = "Bom", label[] = "BomLabel", neighbour[] = "Utilities";
  wchar_t file[] = L"菜单.txt";
  ProMenubarMenuAdd(name, label, neighbour, PRO_B_TRUE, file);
  EXPECT_EQ(sim::CallLog(), (std::vector<sim::CallRecord>{
                                {"ProMdlTypeGet", {"BOLT"}},
                                {"ProMdlTypeGet", {""}},
                                {"ProMdlFiletypeLoad", {"dir\\missing.prt.2"}},
                                {"ProMenubarMenuAdd", {"Bom", "BomLabel", "Utilities", "1", "菜单.txt"}},
                            }));
  sim::ClearCallLog();
  EXPECT_TRUE(sim::CallLog().empty());
}

TEST_F(SimControl, CallLogRecordsOnlyWhileLoggingIsOnAndStartHostTurnsItOff) {
  ProMdl part = sim::AddModel(L"bolt.prt", {});
  TypeOf(part);
  EXPECT_TRUE(sim::CallLog().empty()) << "off after StartHost";
  sim::SetCallLogging(true);
  TypeOf(part);
  sim::SetCallLogging(false);
  TypeOf(part);
  EXPECT_EQ(sim::CallLog(), (std::vector<sim::CallRecord>{{"ProMdlTypeGet", {"BOLT"}}}));

  sim::SetCallLogging(true);
  sim::StartHost({dir.path() / "work"});
  sim::ClearCallLog();
  TypeOf(sim::AddModel(L"nut.prt", {}));
  EXPECT_TRUE(sim::CallLog().empty());
}

// The plug-in's worker thread calls the toolkit while the thread of the
// callback waits for it: no toolkit call may be holding the host then.
TEST_F(SimControl, CallbacksMayWaitForAnotherThreadThatCallsTheToolkit) {
  sim::AddModel(L"p.prt", {});
  sim::ModelDef assembly;
  assembly.type = PRO_MDL_ASSEMBLY;
  assembly.components = {{1, L"p.prt"}};
  auto top = static_cast<ProSolid>(sim::AddModel(L"top.asm", assembly));
  ASSERT_TRUE(sim::SetCurrentModel(top));

  auto visit = [](ProFeature* feature, ProError, ProAppData) {
    return std::async(std::launch::async, [&] { return TypeOf(feature->owner); }).get() == PRO_MDL_ASSEMBLY
               ? PRO_TK_NO_ERROR
               : PRO_TK_GENERAL_ERROR;
  };
  EXPECT_EQ(ProSolidFeatVisit(top, visit, nullptr, nullptr), PRO_TK_NO_ERROR);

  static ProMdl seen = nullptr;
  uiCmdCmdId id = nullptr;
  char action[] = "Worker";
  auto run = [](uiCmdCmdId, uiCmdValue*, void*) {
    std::thread([] { ProMdlCurrentGet(&seen); }).join();
    return 0;
  };
  ASSERT_EQ(ProCmdActionAdd(action, run, 0, nullptr, PRO_B_TRUE, PRO_B_TRUE, &id), PRO_TK_NO_ERROR);
  EXPECT_TRUE(sim::RunAction("Worker"));
  EXPECT_EQ(seen, top);
}

}  // namespace
