// Trail file, configuration options, the host's current directory, macros.
#include "Inspection.h"
#include "ProMenu.h"
#include "ProUtil.h"
#include "SimTest.h"

namespace {

using SimUtil = SimTest;

ProError Comment(std::wstring text) { return ProTrailfileCommentWrite(text.data()); }

TEST_F(SimUtil, EachStartWritesTheNextTrailFileWithCommentLines) {
  dir.Write("work/trail.txt.4", "");
  dir.Write("work/trail.txt.12.bak", "");
  sim::StartHost({dir.path() / "work"});
  EXPECT_EQ(sim::TrailFilePath(), dir.path() / "work/trail.txt.5");
  EXPECT_EQ(Comment(L"#QK~TkBOM~Get~零件 Status = PRO_TK_NO_ERROR"), PRO_TK_NO_ERROR);
  EXPECT_EQ(Comment(std::wstring(PRO_COMMENT_SIZE - 1, L'x')), PRO_TK_NO_ERROR);
  EXPECT_EQ(Comment(std::wstring(PRO_COMMENT_SIZE, L'y')), PRO_TK_LINE_TOO_LONG);
  EXPECT_EQ(ProTrailfileCommentWrite(nullptr), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(dir.Read("work/trail.txt.5"),
            "!trail file version No. 1600\n!#QK~TkBOM~Get~零件 Status = PRO_TK_NO_ERROR\n!" +
                std::string(PRO_COMMENT_SIZE - 1, 'x') + "\n");

  sim::StartHost({dir.path() / "work"});
  EXPECT_EQ(sim::TrailFilePath(), dir.path() / "work/trail.txt.6");
  EXPECT_EQ(dir.Read("work/trail.txt.6"), "!trail file version No. 1600\n");
}

TEST_F(SimUtil, ConfigOptionsIgnoreTheCaseOfTheirNames) {
  ProPath value{};
  std::wstring name = L"Pro_Material_Dir";
  std::wstring set = L"/materials";
  EXPECT_EQ(ProConfigoptionGet(name.data(), value), PRO_TK_E_NOT_FOUND);
  ASSERT_EQ(ProConfigoptSet(name.data(), set.data()), PRO_TK_NO_ERROR);
  std::wstring lower = L"pro_material_dir";
  ASSERT_EQ(ProConfigoptionGet(lower.data(), value), PRO_TK_NO_ERROR);
  EXPECT_STREQ(value, L"/materials");

  dir.Write("session/session.json",
            "{\"configOptions\": {\"long\": \"" + std::string(PRO_PATH_SIZE, 'v') + "\"}}");
  ASSERT_EQ(sim::LoadSession(dir.path() / "session"), PRO_TK_NO_ERROR);
  std::wstring longName = L"LONG";
  EXPECT_EQ(ProConfigoptionGet(longName.data(), value), PRO_TK_LINE_TOO_LONG);
}

TEST_F(SimUtil, DirectoryChangeIsTheHostsOwnAndTakesWindowsSeparators) {
  dir.Write("work/sub/deeper/part.prt", ModelJson("part"));
  std::filesystem::path processDir = std::filesystem::current_path();
  std::wstring relative = L"sub\\\\deeper\\";
  ASSERT_EQ(ProDirectoryChange(relative.data()), PRO_TK_NO_ERROR);
  ProPath current{};
  ASSERT_EQ(ProDirectoryCurrentGet(current), PRO_TK_NO_ERROR);
  EXPECT_EQ(current, dir.Wide("work/sub/deeper") + L"/");
  EXPECT_EQ(std::filesystem::current_path(), processDir);
  EXPECT_NE(Load(L"part.prt"), nullptr) << "bare names are looked up in the new current directory";

  std::wstring up = L"..", missing = L"nowhere", empty;
  EXPECT_EQ(ProDirectoryChange(up.data()), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProDirectoryChange(missing.data()), PRO_TK_CANT_ACCESS);
  EXPECT_EQ(ProDirectoryChange(empty.data()), PRO_TK_BAD_INPUTS);
  ASSERT_EQ(ProDirectoryCurrentGet(current), PRO_TK_NO_ERROR);
  EXPECT_EQ(current, dir.Wide("work/sub") + L"/");
}

TEST_F(SimUtil, MacrosAreQueuedInOrder) {
  std::wstring first = L"~ Command `ProCmdReplace`;", second = L"~ Activate `main_dlg_cur`;", empty;
  EXPECT_EQ(ProMacroLoad(first.data()), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMacroLoad(second.data()), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMacroLoad(empty.data()), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(sim::Macros(), (std::vector<std::wstring>{first, second}));
}

}  // namespace
