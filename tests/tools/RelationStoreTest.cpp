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
  void Put(const std::string& file, const std::string& bytes) const {
    dir.Write((Store() / file).lexically_relative(dir.path()).string(), bytes);
  }

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

TEST_F(RelationStoreTest, ATextWrittenToANameReadsBackLineByLine) {
  EXPECT_EQ(GetRelationDir(), host.TextRoot() + L"\\\\Relation\\");
  std::wstring path = RelationPath(L"齿轮");
  EXPECT_EQ(path, GetRelationDir() + L"齿轮.txt");
  ASSERT_EQ(file.AppendToFile(path, L"D = M * Z\n\nDA = D + 2*M"), 1);
  ASSERT_EQ(file.AppendToFile(path, L"X = 1"), 1) << "a second write replaces the first";
  std::wstring text;
  ASSERT_EQ(file.ReadFileText(path, text), 1);
  EXPECT_EQ(text, L"X = 1\n");
  Names names;
  ListRelationNames(names);
  EXPECT_EQ(names, Names{L"齿轮"});
}

TEST(CheckNewRelationName, UpperCasesTheNameWhenAnyIsListed) {
  std::wstring name = L"gear";
  EXPECT_EQ(CheckNewRelationName(name, {}), NewRelationName::kAccepted);
  EXPECT_EQ(name, L"gear") << "an empty store keeps the case";
  EXPECT_EQ(CheckNewRelationName(name, {L"bolt"}), NewRelationName::kAccepted);
  EXPECT_EQ(name, L"GEAR");
}

TEST(CheckNewRelationName, RefusesAListedNameInAnyCaseAndAnEmptyOne) {
  std::wstring name = L"Gear";
  EXPECT_EQ(CheckNewRelationName(name, {L"bolt", L"gEAR"}), NewRelationName::kExists);
  name.clear();
  EXPECT_EQ(CheckNewRelationName(name, {L"bolt"}), NewRelationName::kEmpty);
  EXPECT_EQ(CheckNewRelationName(name, {}), NewRelationName::kEmpty);
}

}  // namespace
