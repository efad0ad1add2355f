#include "RelationStore.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "PluginHost.h"
#include "TkFile.h"

namespace {

using Names = std::vector<std::wstring>;

// A store of its own in the plug-in's copy of the installation.
class RelationStoreTest : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::remove_all(Store());
    std::filesystem::create_directories(Store());
  }
  std::filesystem::path Store() const { return std::filesystem::path(host.TextRoot()) / "Relation"; }
  std::string Relative(const std::string& file) const {
    return (Store() / file).lexically_relative(dir.path()).string();
  }
  void Put(const std::string& file, const std::string& bytes) const { dir.Write(Relative(file), bytes); }
  std::string StoreFile(const std::string& file) const { return dir.Read(Relative(file)); }

  TestDir dir;
  PluginHost host{dir};
  CTkFile file;
};

TEST_F(RelationStoreTest, ListsEveryFileCutAtItsLastDotSortedWithoutRegardToCase) {
  Put("gear.txt", "");
  Put("Bolt.txt", "");
  Put("a.b.txt", "");
  Put("notes.dat", "");
  Put("README", "");
  std::filesystem::create_directories(Store() / "sub.dir");
  Names names{L"left over"};
  ListRelationNames(names);
  EXPECT_EQ(names, (Names{L"a.b", L"Bolt", L"gear", L"notes", L"README"}));
}

TEST_F(RelationStoreTest, AMissingDirectoryListsNothing) {
  std::filesystem::remove_all(Store());
  Names names{L"left over"};
  ListRelationNames(names);
  EXPECT_EQ(names, Names{});
}

TEST_F(RelationStoreTest, ANameIsAFileOfItsOwnBehindADoubledSeparator) {
  EXPECT_EQ(GetRelationDir(), host.TextRoot() + L"\\\\Relation\\");
  ASSERT_EQ(file.AppendToFile(RelationPath(L"齿轮"), L"D = M * Z"), 1);
  EXPECT_EQ(StoreFile("齿轮.txt"), "D = M * Z");
}

TEST(CheckNewRelationName, RefusesAListedNameInAnyCaseAndUpperCasesANewOneWhenAnyIsListed) {
  std::wstring name = L"gear";
  EXPECT_EQ(CheckNewRelationName(name, {}), NewRelationName::kAccepted);
  EXPECT_EQ(name, L"gear") << "an empty store keeps the case";
  EXPECT_EQ(CheckNewRelationName(name, {L"bolt"}), NewRelationName::kAccepted);
  EXPECT_EQ(name, L"GEAR");
  name = L"Gear";
  EXPECT_EQ(CheckNewRelationName(name, {L"bolt", L"gEAR"}), NewRelationName::kExists);
  name.clear();
  EXPECT_EQ(CheckNewRelationName(name, {L"bolt"}), NewRelationName::kEmpty);
}

}  // namespace
