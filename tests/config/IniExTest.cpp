#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConfigTestSupport.h"
#include "IniEx.h"

namespace {

using Texts = std::vector<std::wstring>;

// "□" in UTF-8.
const std::string kStoredBlank = "\xE2\x96\xA1";

class IniExTest : public ::testing::Test {
 protected:
  void Given(const std::string& bytes) { files.files[L"a.cfg"] = bytes; }
  const std::string& Bytes() { return files.files[L"a.cfg"]; }
  std::wstring Read(const std::wstring& section, const std::wstring& key) {
    std::wstring value = L"stale";
    ini.GetValue(L"a.cfg", section, key, value);
    return value;
  }

  MemoryFiles files;
  CIniEx ini{files};
};

TEST_F(IniExTest, BlankIsStoredAsSquareAndSquareReadsAsBlank) {
  Given("[A]\nk=0\ntyped=x" + kStoredBlank + "y\n");
  EXPECT_EQ(ini.SetValue(L"a.cfg", L"A", L"k", L" a b ", L""), 0);
  EXPECT_EQ(Bytes(), "[A]\nk=" + kStoredBlank + "a" + kStoredBlank + "b" + kStoredBlank + "\ntyped=x" +
                         kStoredBlank + "y\n");
  EXPECT_EQ(Read(L"A", L"k"), L" a b ");
  EXPECT_EQ(Read(L"A", L"typed"), L"x y");
}

TEST_F(IniExTest, ValueWithHashLosesItsTailOnRead) {
  Given("[A]\nnumber=12#note\nnone=#note\nk=0\n");
  ini.SetValue(L"a.cfg", L"A", L"k", L"a#b", L"");
  EXPECT_EQ(Read(L"A", L"number"), L"12");
  EXPECT_EQ(Read(L"A", L"none"), L"");
  EXPECT_EQ(Read(L"A", L"k"), L"a");
}

TEST_F(IniExTest, CommentIsWrittenBehindHashUnencodedAndAWriteWithoutOneDropsIt) {
  Given("[BOM]\nLevelType=0\n");
  ini.SetValue(L"a.cfg", L"BOM", L"LevelType", L"1", L"层级, 0表示单层清单");
  EXPECT_EQ(Bytes(),
            "[BOM]\nLevelType=1#\xE5\xB1\x82\xE7\xBA\xA7, 0\xE8\xA1\xA8\xE7\xA4\xBA"
            "\xE5\x8D\x95\xE5\xB1\x82\xE6\xB8\x85\xE5\x8D\x95\n");
  EXPECT_EQ(Read(L"bom", L"leveltype"), L"1");
  ini.SetValue(L"a.cfg", L"BOM", L"LevelType", L"2", L"");
  EXPECT_EQ(Bytes(), "[BOM]\nLevelType=2\n");
}

TEST_F(IniExTest, SetValueNeverCreatesASectionOrAFileButAddsAKey) {
  Given("[Header]\n[B]\nk=1\n");
  EXPECT_EQ(ini.SetValue(L"a.cfg", L"Header", L"k", L"v", L""), 1);
  EXPECT_EQ(ini.SetValue(L"a.cfg", L"Missing", L"k", L"v", L""), 1);
  EXPECT_EQ(ini.SetValue(L"b.cfg", L"B", L"k", L"v", L""), 1);
  EXPECT_EQ(files.writeCount, 0);
  EXPECT_FALSE(files.files.contains(L"b.cfg"));
  EXPECT_EQ(ini.SetValue(L"a.cfg", L"b", L"New", L"v", L""), 0);
  EXPECT_EQ(Bytes(), "[Header]\n[B]\nk=1\nNew=v\n");
}

TEST_F(IniExTest, HeaderOnlySectionReadsAsAbsent) {
  Given("[Header]\n[B]\nk=1\n");
  std::wstring value = L"stale";
  EXPECT_EQ(ini.GetValue(L"a.cfg", L"Header", L"k", value), 1);
  EXPECT_EQ(value, L"");
  EXPECT_EQ(ini.GetValue(L"a.cfg", L"B", L"missing", value), 0);
  EXPECT_EQ(value, L"");
}

TEST_F(IniExTest, GetSectionSplitsEachLineAtItsLastEqualsAndFirstHash) {
  Given("[Col]\n1=" + kStoredBlank + "名称;40\na=b=c\nbare\n k =v" + kStoredBlank + "w# c" + kStoredBlank +
        "d\n");
  Texts keys{L"stale"}, values, comments;
  EXPECT_EQ(ini.GetSection(L"a.cfg", L"col", keys, values, comments), 0);
  EXPECT_EQ(keys, (Texts{L"1", L"a=b", L"bare", L"k"}));
  EXPECT_EQ(values, (Texts{L" 名称;40", L"c", L"", L"v w"}));
  EXPECT_EQ(comments, (Texts{L"", L"", L"", L" c□d"}));
}

TEST_F(IniExTest, GetSectionOfAMissingSectionEmptiesTheLists) {
  Given("[Col]\n");
  Texts keys{L"k"}, values{L"v"}, comments{L"c"};
  EXPECT_EQ(ini.GetSection(L"a.cfg", L"Col", keys, values, comments), 1);
  EXPECT_TRUE(keys.empty() && values.empty() && comments.empty());
}

}  // namespace
