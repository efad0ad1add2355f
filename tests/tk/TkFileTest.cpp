#include <gtest/gtest.h>

#include "ApplTextPath.h"
#include "PluginHost.h"
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
