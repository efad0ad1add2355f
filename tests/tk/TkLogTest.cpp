#include <gtest/gtest.h>

#include "CallLog.h"
#include "Inspection.h"
#include "MessageBox.h"
#include "PluginHost.h"
#include "TkLog.h"

TEST(TkLogResultName, NamesTheHostsStatusesAndNumbersTheRest) {
  CTkLog log;
  EXPECT_EQ(log.GetResultName(0), L"PRO_TK_NO_ERROR");
  EXPECT_EQ(log.GetResultName(-4), L"PRO_TK_E_NOT_FOUND");
  EXPECT_EQ(log.GetResultName(-7), L"PRO_TK_CONTINUE");
  EXPECT_EQ(log.GetResultName(-40), L"PRO_TK_NO_LICENSE");
  EXPECT_EQ(log.GetResultName(-65), L"PRO_TK_OUT_OF_RANGE");
  EXPECT_EQ(log.GetResultName(-89), L"PRO_TK_APP_TOO_OLD");
  EXPECT_EQ(log.GetResultName(-92), L"PRO_TK_APP_NO_LICENSE");
  EXPECT_EQ(log.GetResultName(-99), L"PRO_TK_APP_UNLOCK");
  // No name between -66 and -88, none beyond the table.
  EXPECT_EQ(log.GetResultName(-66), L"-66");
  EXPECT_EQ(log.GetResultName(-70), L"-70");
  EXPECT_EQ(log.GetResultName(-88), L"-88");
  EXPECT_EQ(log.GetResultName(-100), L"-100");
  EXPECT_EQ(log.GetResultName(5), L"5");
}

class TkLogTrail : public testing::Test {
 protected:
  TestDir dir_;
  PluginHost host_{dir_};
  CTkLog log_;
};

TEST_F(TkLogTrail, LogStatusWritesTheTaggedLineAndHandsBackTheStatus) {
  EXPECT_EQ(log_.LogStatus(L"#QK~A~B~C", -7), -7);
  EXPECT_EQ(log_.LogStatus(L"#QK~TkBOM~GetBomMdls~ProMdlCurrentGet", 0), 0);
  EXPECT_EQ(host_.TrailLines(), (std::vector<std::string>{"!#QK~A~B~C Status = PRO_TK_CONTINUE",
                                                          "!#QK~TkBOM~GetBomMdls~ProMdlCurrentGet Status = "
                                                          "PRO_TK_NO_ERROR"}));
}

TEST_F(TkLogTrail, ShowUserMsgAddsTheResultNameOnlyForAFailure) {
  EXPECT_EQ(log_.ShowUserMsg(L"模型已保存", 0), 0);
  EXPECT_EQ(log_.ShowUserMsg(L"x", -1), -1);
  auto messages = sim::Messages();
  EXPECT_EQ(messages.lines, (std::vector<std::wstring>{L"模型已保存", L"x  PRO_TK_GENERAL_ERROR"}));
  EXPECT_EQ(messages.clearCount, 2);
  EXPECT_EQ(host_.TrailLines(), (std::vector<std::string>{"!模型已保存", "!x  PRO_TK_GENERAL_ERROR"}));
}

TEST_F(TkLogTrail, ShowFileMsgShowsTheKeyedMessageOfTheInstalledFile) {
  EXPECT_EQ(log_.ShowFileMsg(L"please select a pos for placing table", L"BOMMsg.txt"), 0);
  EXPECT_EQ(log_.ShowFileMsg(L"no such key", L"BOMMsg.txt"), 0);
  EXPECT_EQ(log_.ShowFileMsg(L"please select a pos for placing table", L"missing.txt"), 0);
  auto lines = sim::Messages().lines;
  ASSERT_EQ(lines.size(), 1u) << "a missing file or key shows nothing";
  EXPECT_EQ(lines[0], L"请选择表格放置位置");
}

TEST(TkLogPrompt, ShowsTheBoxAndHandsBackTheGivenResultWhateverTheAnswer) {
  std::vector<platform::MessageBoxRequest> boxes;
  auto previous = platform::SetMessageBoxHandler([&](const platform::MessageBoxRequest& request) {
    boxes.push_back(request);
    return platform::kIdYes;
  });
  EXPECT_EQ(CTkLog().ShowPrompt(L"输出完成", L"提示", 0, nullptr, 0), 0);
  EXPECT_EQ(CTkLog().ShowPrompt(L"完成", L"Talvro Tools", 0, nullptr, 5), 5);
  platform::SetMessageBoxHandler(previous);
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, L"输出完成");
  EXPECT_EQ(boxes[0].caption, L"提示");
  EXPECT_EQ(boxes[0].flags, 0u);
}
