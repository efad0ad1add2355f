#include <gtest/gtest.h>

#include <string>

#include "TestDir.h"
#include "TextFile.h"

namespace {

using namespace std::string_literals;
using platform::TextEncoding;

struct Encoded {
  const char* name;
  std::string bytes;  // "零件\r\nM8" in the encoding
  TextEncoding encoding;
};

class TextFileEncodings : public testing::TestWithParam<Encoded> {};

TEST_P(TextFileEncodings, DecodeToTheTextAndEncodeBackToTheSameBytes) {
  platform::DecodedText decoded = platform::DecodeText(GetParam().bytes);
  EXPECT_EQ(decoded.text, L"零件\r\nM8");
  EXPECT_EQ(decoded.encoding, GetParam().encoding);
  EXPECT_EQ(platform::EncodeText(decoded.text, decoded.encoding), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    AsWindowsEditorsSave, TextFileEncodings,
    testing::Values(Encoded{"Utf8", "\xE9\x9B\xB6\xE4\xBB\xB6\r\nM8", TextEncoding::kUtf8},
                    Encoded{"Utf8Bom", "\xEF\xBB\xBF\xE9\x9B\xB6\xE4\xBB\xB6\r\nM8", TextEncoding::kUtf8Bom},
                    Encoded{"Gbk", "\xC1\xE3\xBC\xFE\r\nM8", TextEncoding::kGb18030},
                    Encoded{"Utf16Le",
                            "\xFF\xFE\xF6\x96\xF6\x4E\r\0\n\0M\0"
                            "8\0"s,
                            TextEncoding::kUtf16LeBom},
                    Encoded{"Utf16Be",
                            "\xFE\xFF\x96\xF6\x4E\xF6\0\r\0\n\0M\0"
                            "8"s,
                            TextEncoding::kUtf16BeBom}),
    [](const testing::TestParamInfo<Encoded>& info) { return std::string(info.param.name); });

TEST(TextFile, CharactersBeyondGbkAndTheBasicPlaneRoundTrip) {
  // U+20000 is four bytes in GB18030 and a surrogate pair in UTF-16.
  std::wstring text = L"\U00020000€";
  for (TextEncoding encoding : {TextEncoding::kGb18030, TextEncoding::kUtf16LeBom, TextEncoding::kUtf8}) {
    platform::DecodedText decoded = platform::DecodeText(platform::EncodeText(text, encoding));
    EXPECT_EQ(decoded.text, text);
    EXPECT_EQ(decoded.encoding, encoding);
  }
}

TEST(TextFile, BytesValidInNoEncodingReadOnInTheEncodingThatLosesFewer) {
  // 0x80 and 0xFF stand alone in neither UTF-8 nor GB18030.
  platform::DecodedText neither = platform::DecodeText("a\x80\xFF\nb=1");
  EXPECT_EQ(neither.text, L"a\xFFFD\xFFFD\nb=1");
  EXPECT_EQ(neither.encoding, TextEncoding::kUtf8);
  platform::DecodedText mostlyGbk = platform::DecodeText("\xC1\xE3\xBC\xFE\xFF\nb=1");
  EXPECT_EQ(mostlyGbk.text, L"零件\xFFFD\nb=1");
  EXPECT_EQ(mostlyGbk.encoding, TextEncoding::kGb18030);
  // A byte order mark decides even over broken content; a cut unit is lost alone.
  EXPECT_EQ(platform::DecodeText("\xEF\xBB\xBF\xC1\xE3x").text, L"\xFFFD\xFFFDx");
  EXPECT_EQ(platform::DecodeText("\xFF\xFEx\0y"s).text, L"x\xFFFD");
}

TEST(TextFile, EmptyBytesAreEmptyUtf8) {
  platform::DecodedText empty = platform::DecodeText("");
  EXPECT_EQ(empty.text, L"");
  EXPECT_EQ(empty.encoding, TextEncoding::kUtf8);
  EXPECT_EQ(platform::EncodeText(L"", TextEncoding::kUtf16LeBom), "\xFF\xFE");
}

TEST(TextFile, ReadDecodesAFileAndRefusesADirectoryOrAMissingFile) {
  TestDir dir;
  dir.Write("gbk.txt", "\xC1\xE3\xBC\xFE");
  std::filesystem::create_directory(dir.path() / "sub");
  std::optional<platform::DecodedText> read = platform::ReadTextFile(dir.Wide("gbk.txt"));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->text, L"零件");
  EXPECT_FALSE(platform::ReadTextFile(dir.Wide("sub")));
  EXPECT_FALSE(platform::ReadTextFile(dir.Wide("missing.txt")));
}

}  // namespace
