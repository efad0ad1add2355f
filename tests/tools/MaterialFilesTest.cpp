// The material files of the batch material tool: found by name under a
// directory tree of the host's listing, and named by a chosen path.
#include "MaterialFiles.h"

#include <gtest/gtest.h>

#include <cwctype>

#include "PluginHost.h"

namespace {

class FindMaterialFileTest : public testing::Test {
 protected:
  void SetUp() override {
    dir.Write("mat/450.mtl", "");
    dir.Write("mat/q235.mtl", "");
    dir.Write("mat/cast/ht200.mat", "");
    dir.Write("mat/cast/old/ht200.mtl", "");
    dir.Write("mat/steel/45.mtl.3", "");
  }
  std::wstring Upper(const std::string& relative) const {
    std::wstring path = dir.Wide(relative);
    for (wchar_t& c : path) c = static_cast<wchar_t>(std::towupper(c));
    return path;
  }

  TestDir dir;
  PluginHost host{dir};
};

TEST_F(FindMaterialFileTest, TheNameBeforeTheFirstDotMatchesWhateverItsCase) {
  EXPECT_EQ(FindMaterialFile(dir.Wide("mat"), L"Q235"), Upper("mat/q235.mtl"));
  EXPECT_EQ(FindMaterialFile(dir.Wide("mat"), L"45"), Upper("mat/steel/45.mtl.3"))
      << "a versioned file in a subdirectory, not the longer name beside it";
  EXPECT_EQ(FindMaterialFile(dir.Wide("mat"), L"4"), L"");
  EXPECT_EQ(FindMaterialFile(dir.Wide("mat"), L"40Cr"), L"");
}

TEST_F(FindMaterialFileTest, ADirectoryAnswersBeforeItsSubdirectoriesWhateverTheExtension) {
  EXPECT_EQ(FindMaterialFile(dir.Wide("mat/cast"), L"ht200"), Upper("mat/cast/ht200.mat"));
  EXPECT_EQ(FindMaterialFile(dir.Wide("mat/cast/old"), L"ht200"), Upper("mat/cast/old/ht200.mtl"));
}

TEST(MaterialFileNames, TheChosenFileNamesTheMaterialAndItsDirectory) {
  EXPECT_EQ(MaterialNameOfFile(L"D:\\材料.库\\q235.steel.mtl"), L"Q235")
      << "the dot of a directory is not the name's";
  EXPECT_EQ(MaterialNameOfFile(L"/home/user/mat.dir/6061-t6.mtl"), L"6061-T6");
  EXPECT_EQ(MaterialNameOfFile(L"45"), L"45");
  EXPECT_EQ(MaterialFileDir(L"D:\\材料\\q235.mtl"), L"D:\\材料");
  EXPECT_EQ(MaterialFileDir(L"/home/user/mat/45.mtl"), L"/home/user/mat");
  EXPECT_EQ(MaterialFileDir(L"45.mtl"), L"");
  EXPECT_EQ(MaterialFilePath(L"D:\\材料", L"QT450-10"), L"D:\\材料\\QT450-10.mtl");
  EXPECT_EQ(MaterialFilePath(L"D:\\材料", L""), L"D:\\材料\\.mtl") << "the pick list's empty entry";
}

}  // namespace
