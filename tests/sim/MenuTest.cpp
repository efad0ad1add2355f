// The menu bar, commands, icons and designations, with texts from message
// files of a registered application.
#include "Inspection.h"
#include "ProMenuBar.h"
#include "ProUtil.h"
#include "SimTest.h"

#include <algorithm>

namespace {

char* Text(const char* text) { return const_cast<char*>(text); }

class SimMenus : public SimTest {
 protected:
  SimMenus() {
    dir.Write("app/text/menus/Menu.txt",
              MessageFileText({{"Tools", "工具"}, {"Bom", "清单"}, {"BomHelp", "#"}, {"Set", "设置"}}));
    sim::RegisterApplication(dir.Wide("app"), 6);
  }

  ProError AddTop(const char* name, const char* neighbour, bool after, const char* label = "Tools") {
    return ProMenubarMenuAdd(Text(name), Text(label), Text(neighbour), after ? PRO_B_TRUE : PRO_B_FALSE,
                             file);
  }
  ProError AddButton(const char* parent, const char* name, const char* neighbour, uiCmdCmdId command,
                     const char* label = "Bom") {
    return ProMenubarmenuPushbuttonAdd(Text(parent), Text(name), Text(label), Text("BomHelp"),
                                       Text(neighbour), PRO_B_TRUE, command, file);
  }
  uiCmdCmdId Command(const char* name, uiCmdAccessFn access = nullptr) {
    uiCmdCmdId id = nullptr;
    EXPECT_EQ(ProCmdActionAdd(Text(name), action, uiProeImmediate, access, PRO_B_TRUE, PRO_B_FALSE, &id),
              PRO_TK_NO_ERROR);
    return id;
  }
  static std::vector<std::string> Names(const std::vector<sim::MenuItem>& items) {
    std::vector<std::string> names;
    for (const sim::MenuItem& item : items) names.push_back(item.name);
    return names;
  }

  static inline int actionRuns = 0;
  static int Action(uiCmdCmdId, uiCmdValue*, void*) { return ++actionRuns; }
  uiCmdCmdActFn action = Action;
  wchar_t file[PRO_FILE_NAME_SIZE] = L"menu.TXT";
};

TEST_F(SimMenus, TopMenusGoBesideTheirNeighbourOrAtAnEnd) {
  EXPECT_EQ(AddTop("Bom", "Utilities", true), PRO_TK_NO_ERROR);
  EXPECT_EQ(AddTop("First", nullptr, false), PRO_TK_NO_ERROR);
  EXPECT_EQ(AddTop("Last", nullptr, true), PRO_TK_NO_ERROR);
  EXPECT_EQ(AddTop("BeforeHelp", "Help", false), PRO_TK_NO_ERROR);
  EXPECT_EQ(
      Names(sim::MenuBar()),
      (std::vector<std::string>{"First", "File", "Edit", "View", "Insert", "Analysis", "Info", "Applications",
                                "Tools", "Utilities", "Bom", "Window", "BeforeHelp", "Help", "Last"}));
  EXPECT_EQ(sim::MenuBar()[10].label, L"工具");
}

TEST_F(SimMenus, FailedOrRepeatedAddsChangeNothing) {
  ASSERT_EQ(AddTop("Bom", "Utilities", true), PRO_TK_NO_ERROR);
  std::vector<sim::MenuItem> before = sim::MenuBar();
  // A menu is added once a session; later calls for it are ignored.
  EXPECT_EQ(AddTop("Bom", "File", false), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMenubarmenuMenuAdd(Text("Tools"), Text("Bom"), Text("Set"), nullptr, PRO_B_TRUE, file),
            PRO_TK_NO_ERROR);
  EXPECT_EQ(AddTop("Other", "NoSuchMenu", true), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(AddTop("Other", nullptr, true, "NoSuchKey"), PRO_TK_MSG_NOT_FOUND);
  EXPECT_EQ(ProMenubarmenuMenuAdd(Text("NoSuchMenu"), Text("Sub"), Text("Set"), nullptr, PRO_B_TRUE, file),
            PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(Names(sim::MenuBar()), Names(before));
}

TEST_F(SimMenus, ButtonsGoDirectlyBehindTheirNeighbourUnderAnyKnownMenu) {
  ASSERT_EQ(ProMenubarmenuMenuAdd(Text("Tools"), Text("BomSub"), Text("Set"), nullptr, PRO_B_TRUE, file),
            PRO_TK_NO_ERROR);
  uiCmdCmdId show = Command("Show");
  ASSERT_EQ(AddButton("BomSub", "Anchor", nullptr, show), PRO_TK_NO_ERROR);
  ASSERT_EQ(AddButton("BomSub", "ShowBtn", "Anchor", show), PRO_TK_NO_ERROR);
  ASSERT_EQ(AddButton("BomSub", "SetBtn", "Anchor", Command("Set")), PRO_TK_NO_ERROR);
  EXPECT_EQ(AddButton("BomSub", "Lost", nullptr, &actionRuns), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(AddButton("BomSub", "Unnamed", nullptr, show, "NoSuchKey"), PRO_TK_MSG_NOT_FOUND);
  EXPECT_EQ(AddButton("BomSub", "ShowBtn", nullptr, show), PRO_TK_E_FOUND);

  sim::MenuItem sub = sim::MenuBar()[7].children.at(0);
  EXPECT_EQ(sub.label, L"设置");
  EXPECT_EQ(Names(sub.children), (std::vector<std::string>{"Anchor", "SetBtn", "ShowBtn"}));
  const sim::MenuItem& button = sub.children[2];
  EXPECT_EQ(button.kind, sim::MenuItem::Kind::Button);
  EXPECT_EQ(button.labelKey, "Bom");
  EXPECT_EQ(button.label, L"清单");
  EXPECT_EQ(button.help, L"English BomHelp") << "no translation: the English text";
  EXPECT_EQ(button.command, "Show");
}

TEST_F(SimMenus, CommandsAreKeptInOrderAndNamesAreUnique) {
  Command("A");
  Command("B",
          [](uiCmdAccessMode mode) { return mode == MODE_BLIND ? ACCESS_UNAVAILABLE : ACCESS_AVAILABLE; });
  uiCmdCmdId again = nullptr;
  EXPECT_EQ(ProCmdActionAdd(Text("A"), action, 0, nullptr, PRO_B_FALSE, PRO_B_FALSE, &again), PRO_TK_E_FOUND);
  std::vector<sim::CommandInfo> commands = sim::Commands();
  ASSERT_EQ(commands.size(), 2u);
  EXPECT_EQ(commands[1].name, "B");
  EXPECT_EQ(commands[1].priority, uiProeImmediate);
  EXPECT_TRUE(commands[1].allowInNonActiveWindow);
  EXPECT_FALSE(commands[1].allowInAccessoryWindow);
  EXPECT_EQ(sim::Access("A"), ACCESS_AVAILABLE);
  EXPECT_EQ(sim::Access("B"), ACCESS_UNAVAILABLE);
  EXPECT_EQ(sim::Access("C"), std::nullopt);
  int runs = actionRuns;
  EXPECT_TRUE(sim::RunAction("B"));
  EXPECT_EQ(actionRuns, runs + 1);
}

TEST_F(SimMenus, IconsAreFoundInTheStoredResourcePathOrTheApplicationsOwn) {
  dir.Write("stored/Show.GIF", "GIF89a");
  dir.Write("app/text/resource/set.gif", "GIF89a");
  std::wstring stored = dir.Wide("stored");
  ASSERT_EQ(ProUIResourcepathStore(stored.data()), PRO_TK_NO_ERROR);
  uiCmdCmdId show = Command("Show");
  uiCmdCmdId set = Command("Set");
  EXPECT_EQ(ProCmdIconSet(show, Text("show.gif")), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProCmdIconSet(set, Text("set.gif")), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProCmdIconSet(set, Text("missing.gif")), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(ProCmdIconSet(&actionRuns, Text("set.gif")), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(sim::Commands()[0].icon, dir.path() / "stored/Show.GIF");
  EXPECT_EQ(sim::Commands()[1].icon, dir.path() / "app/text/resource/set.gif");
}

TEST_F(SimMenus, DesignationResolvesThreeKeysOrDesignatesNothing) {
  uiCmdCmdId show = Command("Show");
  wchar_t missingFile[] = L"nofile.txt";
  EXPECT_EQ(ProCmdDesignate(show, Text("Bom"), Text("Bom"), Text("Bom"), missingFile), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(ProCmdDesignate(show, Text("Bom"), Text("NoSuchKey"), Text("Bom"), file), PRO_TK_MSG_NOT_FOUND);
  EXPECT_FALSE(sim::Commands()[0].designated);
  ASSERT_EQ(ProCmdDesignate(show, Text("Bom"), Text("BomHelp"), Text("Set"), file), PRO_TK_NO_ERROR);
  sim::CommandInfo info = sim::Commands()[0];
  EXPECT_TRUE(info.designated);
  EXPECT_EQ(info.label, L"清单");
  EXPECT_EQ(info.help, L"English BomHelp");
  EXPECT_EQ(info.description, L"设置");
}

TEST_F(SimMenus, MenuFilesAreLookedUpInTheMenuDirectoryOnly) {
  // A menu file beside the message files is no menu file to the host.
  dir.Write("app/text/Beside.txt", MessageFileText({{"Tools", "工具"}, {"Bom", "清单"}, {"BomHelp", "#"}}));
  wchar_t beside[] = L"Beside.txt";
  EXPECT_EQ(ProMenubarMenuAdd(Text("Bom"), Text("Tools"), nullptr, PRO_B_TRUE, beside), PRO_TK_MSG_NOT_FOUND);
  EXPECT_EQ(ProCmdDesignate(Command("Show"), Text("Bom"), Text("BomHelp"), Text("Bom"), beside),
            PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(AddTop("Bom", nullptr, true), PRO_TK_NO_ERROR);
}

}  // namespace
