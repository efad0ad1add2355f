#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "ApplTextPath.h"
#include "CallLog.h"
#include "CodePage.h"
#include "HostControl.h"
#include "PluginHost.h"
#include "ProUtil.h"
#include "ScopedTrash.h"
#include "TkFile.h"

namespace {

std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator, int trim) {
  std::vector<std::wstring> pieces{L"left over"};
  CTkFile().SplitText(text, pieces, separator, trim);
  return pieces;
}

}  // namespace

TEST(TkFileSplitText, KeepsEmptyInnerPiecesButOpensNoneAtTheEnd) {
  EXPECT_EQ(Split(L"a,,b,", L',', 0), (std::vector<std::wstring>{L"a", L"", L"b"}));
  EXPECT_EQ(Split(L"", L',', 0), std::vector<std::wstring>{});
  EXPECT_EQ(Split(L"abc", L',', 0), std::vector<std::wstring>{L"abc"});
}

TEST(TkFileSplitText, TrimsPiecesAndRestWhenAsked) {
  EXPECT_EQ(Split(L"a , b", L',', 1), (std::vector<std::wstring>{L"a", L"b"}));
  EXPECT_EQ(Split(L"a , b", L',', 0), (std::vector<std::wstring>{L"a ", L" b"}));
  // Trimming the rest to nothing ends the split: no empty last piece.
  EXPECT_EQ(Split(L"d1; ", L';', 1), std::vector<std::wstring>{L"d1"});
}

TEST(TkFileAppDir, EndsInExactlyOneAddedBackslash) {
  protkrt::SetApplTextPath(L"C:\\p");
  EXPECT_EQ(CTkFile().GetAppDir(), L"C:\\p\\");
  protkrt::SetApplTextPath(L"C:\\p\\");
  EXPECT_EQ(CTkFile().GetAppDir(), L"C:\\p\\");
}

TEST(TkFileCurDir, ChangesOnlyForANonEmptyDirectoryAndHandsBackTheResult) {
  TestDir dir;
  PluginHost host(dir);
  CTkFile file;
  std::wstring start = file.GetCurDir();
  EXPECT_NE(start.find(L"work"), std::wstring::npos);
  EXPECT_EQ(file.ChangeCurDir(L"", 7), 7);
  EXPECT_EQ(file.GetCurDir(), start);
  EXPECT_EQ(file.ChangeCurDir(dir.Wide(), 3), 3);
  EXPECT_NE(file.GetCurDir(), start);
  EXPECT_EQ(file.ChangeCurDir(dir.Wide("missing"), 0), 0) << "the host's refusal is not looked at";
}

namespace {

class TkFileHostTest : public testing::Test {
 protected:
  void SetUp() override { sim::SetCallLogging(true); }
  std::wstring Work(const std::string& relative = "") const { return dir_.Wide("work/" + relative); }

  TestDir dir_;
  PluginHost host_{dir_};
  ScopedTrash trash_{dir_};
  CTkFile file_;
};

}  // namespace

TEST_F(TkFileHostTest, ChooseDirAnswersTheChoiceOrTheDefaultOnCancel) {
  sim::PushAnswer("ProDirectoryChoose", L"/picked");
  EXPECT_EQ(file_.ChooseDir(L"C:\\x"), L"/picked");
  EXPECT_EQ(sim::CallLog().back().args, (std::vector<std::string>{"", "C:\\x"}));
  sim::PushAnswer("ProDirectoryChoose", std::nullopt);
  EXPECT_EQ(file_.ChooseDir(L"C:\\x"), L"C:\\x");
  std::string current = platform::ToNarrow(file_.GetCurDir());
  EXPECT_EQ(file_.ChooseDir(L""), L"");
  EXPECT_EQ(sim::CallLog().back().args, (std::vector<std::string>{"", current}))
      << "starts in the current one";
}

TEST_F(TkFileHostTest, GetConfigOptionIsEmptyWhenUnset) {
  ProName name{L"pro_library_dir"};
  ProPath value{L"/lib"};
  ProConfigoptSet(name, value);
  EXPECT_EQ(file_.GetConfigOption(L"PRO_LIBRARY_DIR"), L"/lib");
  EXPECT_EQ(file_.GetConfigOption(L"search_path_file"), L"");
}

TEST_F(TkFileHostTest, ChooseMdlFileCutsTheVersionUnlessKept) {
  for (const wchar_t* answer : {L"C:\\w\\a.prt.3", L"C:\\w\\a.prt.3", L"C:\\w\\a.prt", L"C:\\w.d\\a.prt"}) {
    sim::PushAnswer("ProFileMdlfiletypeOpen", answer);
  }
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt,*.asm", L"C:\\w", 0), L"C:\\w\\a.prt");
  EXPECT_EQ(sim::CallLog().back().name, "ProFileMdlnameParse");
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 1), L"C:\\w\\a.prt.3");
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 0), L"C:\\w\\a.prt");
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 0), L"C:\\w.d\\a") << "a dotted directory costs the extension";
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 0), L"") << "nothing left to choose: a cancel";
}

TEST_F(TkFileHostTest, ChooseMdlFileAnswersTheOriginOfAModelPickedInSession) {
  dir_.Write("work/bolt.prt.4", R"({"type": "part"})");
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"insession:\\bolt.prt");
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 1), Work("bolt.prt.4"));
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"insession:\\bolt.prt");
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 0), Work("bolt.prt"));
  sim::PushAnswer("ProFileMdlfiletypeOpen", L"insession:\\ghost.prt");
  EXPECT_EQ(file_.ChooseMdlFile(L"*.prt", L"", 1), L"");
}

TEST_F(TkFileHostTest, DelFileToTheTrashLosesNothingAndPermanentDeletionBypassesIt) {
  dir_.Write("work/old.prt.1", "version one");
  ASSERT_EQ(file_.FileExists(Work("OLD.prt.1")), 1);
  EXPECT_EQ(file_.DelFile(Work("old.prt.1"), 0), 1);
  EXPECT_EQ(file_.FileExists(Work("old.prt.1")), 0);
  ASSERT_TRUE(trash_.Restore("old.prt.1"));
  EXPECT_EQ(dir_.Read("work/old.prt.1"), "version one");

  EXPECT_EQ(file_.DelFile(Work("missing.prt"), 0), 0);
  dir_.Write("work/gone.txt", "x");
  EXPECT_EQ(file_.DelFile(Work("gone.txt"), 1), 1) << "permanent: past the trash";
  EXPECT_EQ(file_.FileExists(Work("gone.txt")), 0);
  EXPECT_TRUE(trash_.Names().empty());
}

TEST_F(TkFileHostTest, TextFilesReadByLineAndAppendToFileReplacesTheContents) {
  dir_.Write("work/r.txt", "d1=10\r\n孔径=5\nlast");
  std::vector<std::wstring> lines{L"stale"};
  EXPECT_EQ(file_.ReadLines(Work("r.txt"), lines), 1);
  EXPECT_EQ(lines, (std::vector<std::wstring>{L"d1=10", L"孔径=5", L"last"}));
  std::wstring text = L"stale";
  EXPECT_EQ(file_.ReadFileText(Work("r.txt"), text), 1);
  EXPECT_EQ(text, L"d1=10\n孔径=5\nlast\n");
  EXPECT_EQ(file_.ReadLines(L"", lines), 0);
  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(file_.ReadFileText(Work("missing.txt"), text), 0);
  EXPECT_EQ(text, L"");

  EXPECT_EQ(file_.AppendToFile(Work("out.txt"), L"first"), 1);
  EXPECT_EQ(file_.AppendToFile(Work("out.txt"), L"第二"), 1);
  EXPECT_EQ(dir_.Read("work/out.txt"), "第二");
  EXPECT_NE(file_.AppendToFile(Work("no/dir/out.txt"), L"x"), 1);
}

TEST_F(TkFileHostTest, ReadLinesTakesTheEncodingsOfWindowsEditorsAndRefusesADirectory) {
  using namespace std::string_literals;
  // "零件=1" and "M8": GBK, UTF-8 behind a byte order mark, UTF-16 LE and BE.
  const std::pair<const char*, std::string> files[] = {
      {"gbk.txt", "\xC1\xE3\xBC\xFE=1\r\nM8"},
      {"utf8.txt", "\xEF\xBB\xBF\xE9\x9B\xB6\xE4\xBB\xB6=1\r\nM8\n"},
      {"le.txt",
       "\xFF\xFE\xF6\x96\xF6\x4E=\0"
       "1\0\r\0\n\0M\0"
       "8\0"s},
      {"be.txt",
       "\xFE\xFF\x96\xF6\x4E\xF6\0=\0"
       "1\0\n\0M\0"
       "8"s}};
  for (const auto& [name, bytes] : files) {
    dir_.Write(std::string("work/") + name, bytes);
    std::vector<std::wstring> lines;
    EXPECT_EQ(file_.ReadLines(Work(name), lines), 1) << name;
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"零件=1", L"M8"})) << name;
  }
  std::filesystem::create_directories(dir_.path() / "work" / "sub");
  std::vector<std::wstring> lines{L"stale"};
  EXPECT_EQ(file_.ReadLines(Work("sub"), lines), 0);
  EXPECT_TRUE(lines.empty());
}

TEST_F(TkFileHostTest, ListingsOfTheSystem) {
  for (const char* name : {"m/a.prt", "m/a.prt.1", "m/a.prt.2", "m/b.asm.1", "m/s/t/deep.prt.1"}) {
    dir_.Write(std::string("work/") + name, "{}");
  }
  std::vector<std::wstring> names{L"stale"};
  file_.ListFiles(Work("m"), names);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::wstring>{L"a.prt", L"a.prt.1", L"a.prt.2", L"b.asm.1"}));
  EXPECT_EQ(file_.ListFilesByExt(Work("m"), {L"asm", L"PRT"}, names), 1);
  ASSERT_EQ(names.size(), 3u);
  EXPECT_EQ(names[0], L"b.asm.1") << "extension by extension";
  std::vector<std::wstring> dirs{L"kept"};
  file_.ListSubDirsRecursive(Work("m"), dirs);
  EXPECT_EQ(dirs, (std::vector<std::wstring>{L"kept", Work("m") + L"\\s", Work("m") + L"\\s\\t"}));
}

TEST_F(TkFileHostTest, ListingsOfTheHost) {
  for (const char* name : {"m/a.prt.1", "m/a.prt.2", "m/b.asm.1", "m/notes.txt", "m/s/deep.prt.1"}) {
    dir_.Write(std::string("work/") + name, "{}");
  }
  std::vector<std::wstring> files{L"kept"};
  EXPECT_EQ(file_.ListMdlFilesRecursive(Work("m"), files, 0), 0);
  EXPECT_EQ(files,
            (std::vector<std::wstring>{L"kept", Work("m/a.prt.1"), Work("m/a.prt.2"), Work("m/b.asm.1"),
                                       Work("m/notes.txt"), Work("m/s/deep.prt.1")}));
  files.clear();
  file_.ListMdlFilesRecursive(Work("m"), files, 1);
  EXPECT_EQ(files.size(), 4u) << "latest versions only";

  std::vector<std::wstring> names{L"kept"};
  EXPECT_EQ(file_.ListMdlsInDir(Work("m"), names, {L"prt", L"asm"}), 0);
  EXPECT_EQ(names, (std::vector<std::wstring>{L"kept", L"a.prt.2", L"b.asm.1"}));
  EXPECT_EQ(sim::CallLog().back().name, "ProArrayFree");
  EXPECT_EQ(file_.ListMdlsInDir(Work("nowhere"), names, {L"prt"}), 0);
  EXPECT_EQ(names.size(), 3u);
}
