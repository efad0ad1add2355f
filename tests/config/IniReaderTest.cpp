#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConfigTestSupport.h"
#include "IniReader.h"

namespace {

using Lines = std::vector<std::wstring>;

// A reader on the memory file "a.cfg".
class IniReaderTest : public ::testing::Test {
 protected:
  IniReaderTest() { reader.SetIniFile(L"a.cfg"); }
  void Given(const std::string& bytes) { files.files[L"a.cfg"] = bytes; }
  const std::string& Bytes() { return files.files[L"a.cfg"]; }

  MemoryFiles files;
  CIniReader reader{files};
};

std::wstring Wide(const std::string& ascii) { return std::wstring(ascii.begin(), ascii.end()); }

std::string Numbered(char prefix, int number) { return prefix + std::to_string(1000 + number).substr(1); }

TEST_F(IniReaderTest, NamesMatchInAnyCaseAndBlanksAroundKeyAndValueAreDropped) {
  Given("[ Dlg Set ]\n  SaveAuto \t=  on  off \n");
  EXPECT_EQ(reader.GetKeyValue(L"saveauto", L"DLG SET"), L"on  off");
  EXPECT_EQ(reader.GetKeyValue(L"Time", L"Dlg Set"), L"");
}

TEST_F(IniReaderTest, ValueIsCutAt254Characters) {
  Given("[A]\nk=" + std::string(300, 'x') + "\n");
  EXPECT_EQ(reader.GetKeyValue(L"k", L"A"), std::wstring(254, L'x'));
}

TEST_F(IniReaderTest, SectionExistsOnlyWithAKey) {
  Given("[Header]\n\n[Commented]\n; k=1\n[Keyed]\nk=1\n");
  EXPECT_EQ(reader.SectionExists(L"Header"), 0);
  EXPECT_EQ(reader.SectionExists(L"Commented"), 0);
  EXPECT_EQ(reader.SectionExists(L"keyed"), 1);
  EXPECT_EQ(reader.SectionExists(L"Missing"), 0);
  reader.SetIniFile(L"missing.cfg");
  EXPECT_EQ(reader.SectionExists(L"Keyed"), 0);
}

TEST_F(IniReaderTest, SectionDataGivesKeyEqualsValueLinesWithoutBlanksAndComments) {
  Given("top=1\n[A]\n k = v w \n\n;note\nbare\n[B]\nx=1\n");
  EXPECT_EQ(reader.GetSectionData(L"a"), (Lines{L"k=v w", L"bare"}));
  EXPECT_EQ(reader.GetSectionNames(), (Lines{L"A", L"B"}));
}

// Items of 19 characters: 99 of them with their NULs fill 1980 of the 2000
// places of a list read; the 100th keeps 18 characters, then the closing NULs.
TEST_F(IniReaderTest, SectionDataIsCutAtTheListLimit) {
  std::string bytes = "[A]\n";
  for (int i = 0; i < 150; ++i) bytes += Numbered('k', i) + "=" + std::string(14, 'v') + "\n";
  Given(bytes);
  const Lines& data = reader.GetSectionData(L"A");
  ASSERT_EQ(data.size(), 100u);
  EXPECT_EQ(data[98], L"k098=" + std::wstring(14, L'v'));
  EXPECT_EQ(data[99], L"k099=" + std::wstring(13, L'v'));
  EXPECT_EQ(reader.GetLastResult(), 1998);
}

TEST_F(IniReaderTest, SectionNamesAreCutAtTheListLimit) {
  std::string bytes;
  for (int i = 0; i < 150; ++i) bytes += "[" + Numbered('s', i) + std::string(15, 'n') + "]\nk=1\n";
  Given(bytes);
  const Lines& names = reader.GetSectionNames();
  ASSERT_EQ(names.size(), 100u);
  EXPECT_EQ(names[0], Wide(Numbered('s', 0) + std::string(15, 'n')));
  EXPECT_EQ(names[99], Wide(Numbered('s', 99) + std::string(14, 'n')));
}

TEST_F(IniReaderTest, WriteRewritesOnlyTheKeyLineOrAddsBehindTheSectionsLastKeyOrAppendsTheSection) {
  Given("; head\n[A]\nx = 1 \nKey=old\n\n[B]\nkey=b\n");
  EXPECT_EQ(reader.SetKey(L"new", L"KEY", L"a"), 1);
  EXPECT_EQ(Bytes(), "; head\n[A]\nx = 1 \nKey=new\n\n[B]\nkey=b\n");
  Given("[A]\nx=1\n; about B\n\n[B]\n\n[C]\ny=2");
  reader.SetKey(L"2", L"z", L"A");
  reader.SetKey(L"1", L"w", L"b");
  reader.SetKey(L"v", L"k", L"D");
  EXPECT_EQ(Bytes(), "[A]\nx=1\nz=2\n; about B\n\n[B]\nw=1\n\n[C]\ny=2\n[D]\nk=v\n");
}

TEST_F(IniReaderTest, ByteOrderMarkAndCrLfAreReadAndKept) {
  Given("\xEF\xBB\xBF[A]\r\nx=1\r\n[B]\r\n");
  EXPECT_EQ(reader.GetKeyValue(L"x", L"A"), L"1");
  reader.SetKey(L"层级", L"y", L"A");
  EXPECT_EQ(Bytes(), "\xEF\xBB\xBF[A]\r\nx=1\r\ny=\xE5\xB1\x82\xE7\xBA\xA7\r\n[B]\r\n");
  EXPECT_EQ(reader.GetKeyValue(L"y", L"A"), L"层级");
}

TEST(IniReaderDisk, WriteCreatesAMissingFileButNotAMissingDirectory) {
  TestDir dir;
  CIniReader reader;
  reader.SetIniFile(dir.Wide("new.cfg"));
  EXPECT_EQ(reader.SetKey(L"1", L"k", L"A"), 1);
  EXPECT_EQ(dir.Read("new.cfg"), "[A]\nk=1\n");
  reader.SetIniFile(dir.Wide("nowhere\\a.cfg"));
  EXPECT_EQ(reader.SetKey(L"1", L"k", L"A"), 0);
  EXPECT_EQ(reader.GetLastResult(), 0);
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "nowhere"));
}

}  // namespace
