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

struct EncodedCfg {
  const char* name;
  std::string original;  // "[列]\r\n1=零件\r\n"
  std::string written;   // the same with "2=件" added to the section
};

class IniReaderEncodings : public IniReaderTest, public testing::WithParamInterface<EncodedCfg> {};

TEST_P(IniReaderEncodings, ReadsTheTextAndWritesBackInTheFilesEncoding) {
  Given(GetParam().original);
  EXPECT_EQ(reader.GetKeyValue(L"1", L"列"), L"零件");
  EXPECT_EQ(reader.SetKey(L"零件", L"1", L"列"), 1);
  EXPECT_EQ(Bytes(), GetParam().original);
  reader.SetKey(L"件", L"2", L"列");
  EXPECT_EQ(Bytes(), GetParam().written);
}

using namespace std::string_literals;

INSTANTIATE_TEST_SUITE_P(
    AsWindowsEditorsSave, IniReaderEncodings,
    testing::Values(EncodedCfg{"Gbk", "[\xC1\xD0]\r\n1=\xC1\xE3\xBC\xFE\r\n",
                               "[\xC1\xD0]\r\n1=\xC1\xE3\xBC\xFE\r\n2=\xBC\xFE\r\n"},
                    EncodedCfg{
                        "Utf8Bom", "\xEF\xBB\xBF[\xE5\x88\x97]\r\n1=\xE9\x9B\xB6\xE4\xBB\xB6\r\n",
                        "\xEF\xBB\xBF[\xE5\x88\x97]\r\n1=\xE9\x9B\xB6\xE4\xBB\xB6\r\n2=\xE4\xBB\xB6\r\n"},
                    EncodedCfg{"Utf16Le",
                               "\xFF\xFE[\0\x17\x52]\0\r\0\n\0"
                               "1\0=\0\xF6\x96\xF6\x4E\r\0\n\0"s,
                               "\xFF\xFE[\0\x17\x52]\0\r\0\n\0"
                               "1\0=\0\xF6\x96\xF6\x4E\r\0\n\0"
                               "2\0=\0\xF6\x4E\r\0\n\0"s},
                    EncodedCfg{"Utf16Be",
                               "\xFE\xFF\0[\x52\x17\0]\0\r\0\n\0"
                               "1\0=\x96\xF6\x4E\xF6\0\r\0\n"s,
                               "\xFE\xFF\0[\x52\x17\0]\0\r\0\n\0"
                               "1\0=\x96\xF6\x4E\xF6\0\r\0\n\0"
                               "2\0=\x4E\xF6\0\r\0\n"s}),
    [](const testing::TestParamInfo<EncodedCfg>& info) { return std::string(info.param.name); });

TEST_F(IniReaderTest, BytesValidInNoEncodingCostOnlyTheirOwnCharacters) {
  // GBK with a stray byte 0xFF, which no encoding here takes.
  Given("[A]\r\nname=\xC1\xE3\xBC\xFE\xFF\r\nk=v\r\n");
  EXPECT_EQ(reader.GetKeyValue(L"name", L"A"), L"零件\xFFFD");
  EXPECT_EQ(reader.GetKeyValue(L"k", L"A"), L"v");
  reader.SetKey(L"w", L"k", L"A");
  EXPECT_EQ(Bytes(), "[A]\r\nname=\xC1\xE3\xBC\xFE\x84\x31\xA4\x37\r\nk=w\r\n");
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
