// Text files as designers bring them from Windows machines, where editors save
// in UTF-8, in UTF-16 behind a byte order mark or in the Chinese system code
// page. Every reader of a text file decodes through here, so that all of them
// take the same files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

enum class TextEncoding { kUtf8, kUtf8Bom, kUtf16LeBom, kUtf16BeBom, kGb18030 };

struct DecodedText {
  std::wstring text;
  TextEncoding encoding = TextEncoding::kUtf8;
};

// A byte order mark decides (UTF-8, UTF-16 LE or BE) and is dropped; without
// one the bytes are UTF-8 when they are valid UTF-8, else GB18030 (the
// superset of GBK) when valid there. Bytes valid in neither are taken in
// whichever of the two leaves fewer bytes undecoded, UTF-8 on a tie; each
// byte left (each code unit in UTF-16) becomes U+FFFD and the rest of the
// text reads on.
DecodedText DecodeText(std::string_view bytes);

// The text in the encoding, its byte order mark first where it has one. What
// the encoding cannot hold becomes U+FFFD.
std::string EncodeText(std::wstring_view text, TextEncoding encoding);

// The file decoded; nullopt when it is no readable file, a directory included.
std::optional<DecodedText> ReadTextFile(std::wstring_view path);

}  // namespace platform
