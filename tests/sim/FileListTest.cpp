// Directory listings and model file names.
#include "ProArray.h"
#include "ProUtil.h"
#include "SimTest.h"

#include <filesystem>

namespace {

class SimFileList : public SimTest {
 protected:
  SimFileList() {
    for (const char* name : {"a.prt.1", "a.prt.2", "B.PRT.7", "c.asm", "notes.txt", "a.drw.1"}) {
      dir.Write(std::string("work/models/") + name, "{}");
    }
    std::filesystem::create_directories(dir.path() / "work/models/sub");
  }

  struct Listing {
    ProError status;
    std::vector<std::wstring> files;
    std::vector<std::wstring> dirs;
  };

  Listing List(const wchar_t* directory, const std::wstring& filter, ProFileListOpt option) {
    ProPath* files = nullptr;
    ProPath* dirs = nullptr;
    ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&files));
    ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&dirs));
    ProPath dirBuffer{};
    if (directory) std::wstring(directory).copy(dirBuffer, PRO_PATH_SIZE - 1);
    ProLine filterBuffer{};
    filter.copy(filterBuffer, PRO_LINE_SIZE - 1);
    Listing listing{
        ProFilesList(directory ? dirBuffer : nullptr, filterBuffer, option, &files, &dirs), {}, {}};
    int count = 0;
    ProArraySizeGet(files, &count);
    for (int i = 0; i < count; ++i) listing.files.emplace_back(files[i]);
    ProArraySizeGet(dirs, &count);
    for (int i = 0; i < count; ++i) listing.dirs.emplace_back(dirs[i]);
    ProArrayFree(reinterpret_cast<ProArray*>(&files));
    ProArrayFree(reinterpret_cast<ProArray*>(&dirs));
    return listing;
  }

  std::wstring Models(const std::string& name) const { return dir.Wide("work/models/" + name); }
};

TEST_F(SimFileList, AllVersionsOrOnlyTheLatestMatchingByNameWithoutVersion) {
  Listing all = List(Models("").c_str(), L"*.prt", PRO_FILE_LIST_ALL);
  EXPECT_EQ(all.status, PRO_TK_NO_ERROR);
  EXPECT_EQ(all.files, (std::vector<std::wstring>{Models("B.PRT.7"), Models("a.prt.1"), Models("a.prt.2")}));
  EXPECT_EQ(all.dirs, std::vector<std::wstring>{Models("sub")}) << "listed though it does not match";

  Listing latest = List(Models("").c_str(), L"*.prt, *.asm", PRO_FILE_LIST_LATEST);
  EXPECT_EQ(latest.files, (std::vector<std::wstring>{Models("B.PRT.7"), Models("a.prt.2"), Models("c.asm")}));
}

TEST_F(SimFileList, StarDotStarListsEveryFileAndNullIsTheCurrentDirectory) {
  EXPECT_EQ(List(Models("").c_str(), L"*.*", PRO_FILE_LIST_LATEST).files.size(), 5u);
  Listing current = List(nullptr, L"*.prt", PRO_FILE_LIST_ALL);
  EXPECT_TRUE(current.files.empty());
  EXPECT_EQ(current.dirs, std::vector<std::wstring>{dir.Wide("work/models")});
}

TEST_F(SimFileList, ResultsAreAppendedToTheCallersArrays) {
  ProPath* files = nullptr;
  ProPath* dirs = nullptr;
  ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&files));
  ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&dirs));
  ProPath first{L"first"};
  ProArrayObjectAdd(reinterpret_cast<ProArray*>(&files), -1, 1, first);
  ProPath path{};
  Models("").copy(path, PRO_PATH_SIZE - 1);
  ProLine filter{L"*.txt"};
  ASSERT_EQ(ProFilesList(path, filter, PRO_FILE_LIST_ALL, &files, &dirs), PRO_TK_NO_ERROR);
  int count = 0;
  ProArraySizeGet(files, &count);
  ASSERT_EQ(count, 2);
  EXPECT_STREQ(files[0], L"first");
  EXPECT_EQ(files[1], Models("notes.txt"));
  ProArrayFree(reinterpret_cast<ProArray*>(&files));
  ProArrayFree(reinterpret_cast<ProArray*>(&dirs));
  ProPath* unallocated = nullptr;
  EXPECT_EQ(ProFilesList(path, filter, PRO_FILE_LIST_ALL, &unallocated, &unallocated), PRO_TK_BAD_INPUTS);
}

TEST_F(SimFileList, MissingDirectoryIsInvalid) {
  EXPECT_EQ(List(Models("nope").c_str(), L"*.*", PRO_FILE_LIST_ALL).status, PRO_TK_INVALID_DIR);
}

TEST_F(SimFileList, ParseSplitsDirectoryNameExtensionAndVersion) {
  ProPath path{L"C:\\work\\Housing.PRT.12"};
  ProPath directory{};
  ProMdlName name{};
  ProMdlExtension extension{};
  int version = -1;
  ASSERT_EQ(ProFileMdlnameParse(path, directory, name, extension, &version), PRO_TK_NO_ERROR);
  EXPECT_STREQ(directory, L"C:\\work\\");
  EXPECT_STREQ(name, L"Housing");
  EXPECT_STREQ(extension, L"prt");
  EXPECT_EQ(version, 12);
  ProPath inSession{L"insession:\\bolt.prt"};
  ASSERT_EQ(ProFileMdlnameParse(inSession, directory, name, nullptr, nullptr), PRO_TK_NO_ERROR);
  EXPECT_STREQ(directory, L"insession:");
  EXPECT_STREQ(name, L"\\bolt");
}

}  // namespace
