// The host's choosers: answered from the script, each call from its own
// queue, and asked of someone in front of the host only when the script
// holds nothing.
#include "HostControl.h"
#include "ProUtil.h"
#include "SimTest.h"

namespace {

class ChooserTest : public SimTest {
 protected:
  ~ChooserTest() override { sim::SetAnswerProvider(nullptr); }

  ProError ChooseDir(std::wstring& chosen) {
    ProName label = L"目录";
    ProPath start = L"/start";
    ProPath selected{};
    ProError status = ProDirectoryChoose(label, nullptr, nullptr, start, selected);
    chosen = selected;
    return status;
  }
  ProError ChooseFile(std::wstring& chosen) {
    ProPath start = L"/start";
    ProMdlFileName preselected{L"*.prt"};
    ProPath selected{};
    ProError status =
        ProFileMdlfiletypeOpen(nullptr, nullptr, nullptr, nullptr, start, preselected, selected);
    chosen = selected;
    return status;
  }
};

TEST_F(ChooserTest, ScriptedAnswersQueuePerCallAndACancelOrNoAnswerIsUserAbort) {
  sim::PushAnswer("ProDirectoryChoose", L"/chosen/dir");
  sim::PushAnswer("ProDirectoryChoose", std::nullopt);
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"/w/a.prt.3");
  std::wstring chosen;
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_NO_ERROR);
  EXPECT_EQ(chosen, L"/chosen/dir");
  EXPECT_EQ(ChooseFile(chosen), PRO_TK_NO_ERROR);
  EXPECT_EQ(chosen, L"/w/a.prt.3");
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_USER_ABORT);
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_USER_ABORT);
  EXPECT_EQ(ChooseFile(chosen), PRO_TK_USER_ABORT);
}

TEST_F(ChooserTest, ProviderAnswersWhenNothingIsQueued) {
  std::vector<std::string> asked;
  sim::SetAnswerProvider([&](const std::string& call, const std::wstring& label, const std::wstring& start) {
    asked.push_back(call);
    EXPECT_EQ(label, L"目录");
    EXPECT_EQ(start, L"/start");
    return std::optional<std::wstring>(L"/picked");
  });
  sim::PushAnswer("ProDirectoryChoose", L"/queued");
  std::wstring chosen;
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_NO_ERROR);
  EXPECT_EQ(chosen, L"/queued");
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_NO_ERROR);
  EXPECT_EQ(chosen, L"/picked");
  EXPECT_EQ(asked, (std::vector<std::string>{"ProDirectoryChoose"}));
}

TEST_F(ChooserTest, ProviderCancellingIsUserAbortAndAQueuedCancelAsksNobody) {
  sim::SetAnswerProvider([](const std::string&, const std::wstring&, const std::wstring&) {
    return std::optional<std::wstring>();
  });
  std::wstring chosen;
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_USER_ABORT);
  sim::SetAnswerProvider([](const std::string&, const std::wstring&, const std::wstring&) {
    ADD_FAILURE() << "asked despite the script";
    return std::optional<std::wstring>(L"/x");
  });
  sim::PushAnswer("ProDirectoryChoose", std::nullopt);
  EXPECT_EQ(ChooseDir(chosen), PRO_TK_USER_ABORT);
}

}  // namespace
