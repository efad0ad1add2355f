// Windows, the current model and activation on return to the host.
#include "CallLog.h"
#include "Inspection.h"
#include "ProMdl.h"
#include "ProWindows.h"
#include "SimTest.h"

namespace {

class SimWindows : public SimTest {
 protected:
  int Create(const wchar_t* name, ProType type, ProError expected = PRO_TK_NO_ERROR) {
    ProMdlName buffer{};
    std::wcsncpy(buffer, name, PRO_MDLNAME_SIZE - 1);
    int id = -1;
    EXPECT_EQ(ProObjectwindowMdlnameCreate(buffer, type, &id), expected);
    return id;
  }
  static ProMdl Current() {
    ProMdl mdl = nullptr;
    EXPECT_EQ(ProMdlCurrentGet(&mdl), PRO_TK_NO_ERROR);
    return mdl;
  }

  ProMdl part = sim::AddModel(L"shaft.prt", {});
  ProMdl other = sim::AddModel(L"gear.prt", {});
};

TEST_F(SimWindows, EmptyBaseWindowMeansNoCurrentModel) {
  ProMdl mdl = nullptr;
  EXPECT_EQ(ProMdlCurrentGet(&mdl), PRO_TK_BAD_CONTEXT);
  int id = -1;
  ASSERT_EQ(ProWindowCurrentGet(&id), PRO_TK_NO_ERROR);
  EXPECT_EQ(id, 0);
  ASSERT_TRUE(sim::SetCurrentModel(part));
  EXPECT_EQ(Current(), part);
  ASSERT_TRUE(sim::SetCurrentModel(nullptr));
  EXPECT_EQ(ProMdlCurrentGet(&mdl), PRO_TK_BAD_CONTEXT);
}

TEST_F(SimWindows, ObjectWindowReusesTheObjectsWindowThenAnEmptyOneThenOpensOne) {
  EXPECT_EQ(Create(L"SHAFT", PRO_PART), 0) << "the empty base window";
  EXPECT_EQ(Create(L"shaft", PRO_PART), 0) << "the window showing it";
  EXPECT_EQ(Create(L"GEAR", PRO_PART), 1);
  Create(L"GEAR", PRO_ASSEMBLY, PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(sim::Windows().size(), 2u);
}

TEST_F(SimWindows, ActivationTakesEffectWhenControlReturnsToTheHost) {
  ASSERT_TRUE(sim::SetCurrentModel(part));
  int window = Create(L"GEAR", PRO_PART);
  ASSERT_EQ(ProWindowActivate(window), PRO_TK_NO_ERROR);
  EXPECT_EQ(Current(), part);
  sim::ReturnToHost();
  EXPECT_EQ(sim::CurrentWindow(), window);
  EXPECT_EQ(Current(), other);
  EXPECT_EQ(ProWindowActivate(42), PRO_TK_BAD_INPUTS);
}

TEST_F(SimWindows, DisplayMarksTheModelsWindowOrFillsTheCurrentOne) {
  EXPECT_EQ(ProMdlDisplay(nullptr), PRO_TK_E_NOT_FOUND) << "no current object";
  ASSERT_EQ(ProMdlDisplay(part), PRO_TK_NO_ERROR);
  EXPECT_EQ(Current(), part);
  int window = Create(L"GEAR", PRO_PART);
  ASSERT_EQ(ProMdlDisplay(other), PRO_TK_NO_ERROR);
  std::vector<sim::WindowInfo> windows = sim::Windows();
  ASSERT_EQ(windows.size(), 2u);
  EXPECT_TRUE(windows[0].displayed);
  EXPECT_EQ(windows[1].id, window);
  EXPECT_EQ(windows[1].model, other);
  EXPECT_TRUE(windows[1].displayed);
}

TEST_F(SimWindows, RefreshRepaintAndClearTakeTheCurrentWindowForUnused) {
  sim::SetCallLogging(true);
  sim::ClearCallLog();
  EXPECT_EQ(ProWindowRefresh(PRO_VALUE_UNUSED), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProWindowRepaint(0), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProWindowClear(3), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(sim::CallLog(),
            (std::vector<sim::CallRecord>{
                {"ProWindowRefresh", {"-1"}}, {"ProWindowRepaint", {"0"}}, {"ProWindowClear", {"3"}}}));
}

}  // namespace
