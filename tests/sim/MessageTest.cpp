// The message area: keyed texts from message files with their arguments.
#include "CommaLocale.h"
#include "Inspection.h"
#include "ProMessage.h"
#include "SimTest.h"

namespace {

class SimMessages : public SimTest {
 protected:
  SimMessages() { sim::RegisterApplication(dir.Wide("app"), 6); }

  wchar_t file[PRO_FILE_NAME_SIZE] = L"msg.txt";
};

TEST_F(SimMessages, ArgumentsArePointersReadInIndexOrder) {
  dir.Write("app/text/msg.txt", MessageFileText({{"%1d of %0s: %2w at %3f, again %0s", "#"}}));
  int count = 3;
  std::wstring wide = L"轴";
  double at = 12.5;
  ASSERT_EQ(ProMessageDisplay(file, const_cast<char*>("%1d of %0s: %2w at %3f, again %0s"), "bolts", &count,
                              wide.c_str(), &at),
            PRO_TK_NO_ERROR);
  EXPECT_EQ(sim::Messages().currentLine, L"English 3 of bolts: 轴 at 12.500000, again bolts");
  CommaLocale comma;
  ASSERT_EQ(ProMessageDisplay(file, const_cast<char*>("%1d of %0s: %2w at %3f, again %0s"), "bolts", &count,
                              wide.c_str(), &at),
            PRO_TK_NO_ERROR);
  EXPECT_EQ(sim::Messages().currentLine, L"English 3 of bolts: 轴 at 12.500000, again bolts");
}

TEST_F(SimMessages, TranslationIsShownAndBomAndCrLfAreAccepted) {
  dir.Write("app/text/MSG.TXT",
            "\xEF\xBB\xBFUSER %0s\r\n%0s\r\n用户 %0s\r\n#\r\nplain\r\nPlain text\r\n#\r\n#\r\n");
  char user[] = "USER %0s";
  char plain[] = "plain";
  ASSERT_EQ(ProMessageDisplay(file, user, "零件"), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMessageDisplay(file, plain), PRO_TK_NO_ERROR);
  EXPECT_EQ(sim::Messages().lines, (std::vector<std::wstring>{L"用户 零件", L"Plain text"}));
}

TEST_F(SimMessages, UnknownFileOrKeyShowsNothing) {
  dir.Write("app/text/msg.txt", MessageFileText({{"known", "#"}}));
  char unknown[] = "unknown";
  wchar_t otherFile[] = L"other.txt";
  EXPECT_EQ(ProMessageDisplay(file, unknown), PRO_TK_MSG_NOT_FOUND);
  EXPECT_EQ(ProMessageDisplay(otherFile, unknown), PRO_TK_MSG_NOT_FOUND);
  EXPECT_TRUE(sim::Messages().lines.empty());
}

TEST_F(SimMessages, MessageFilesAreLookedUpInTheMessageDirectoryOnly) {
  dir.Write("app/text/menus/msg.txt", MessageFileText({{"known", "已知"}}));
  char known[] = "known";
  EXPECT_EQ(ProMessageDisplay(file, known), PRO_TK_MSG_NOT_FOUND);
  EXPECT_TRUE(sim::Messages().lines.empty());
}

TEST_F(SimMessages, ClearEmptiesTheLineButKeepsTheHistory) {
  dir.Write("app/text/msg.txt", MessageFileText({{"known", "已知"}}));
  char known[] = "known";
  ASSERT_EQ(ProMessageDisplay(file, known), PRO_TK_NO_ERROR);
  ProMessageClear();
  ProMessageClear();
  sim::MessageArea area = sim::Messages();
  EXPECT_EQ(area.currentLine, L"");
  EXPECT_EQ(area.lines, std::vector<std::wstring>{L"已知"});
  EXPECT_EQ(area.clearCount, 2);
}

}  // namespace
