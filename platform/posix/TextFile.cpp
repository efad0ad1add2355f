#include "TextFile.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "Files.h"

namespace platform {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeMark = "\xFF\xFE";
constexpr std::string_view kUtf16BeMark = "\xFE\xFF";

struct Conversion {
  std::wstring text;
  std::size_t undecoded = 0;
};

class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  ~Converter() {
    if (handle_ != reinterpret_cast<iconv_t>(-1)) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // Converts all of `in`. Where iconv stops at input it cannot take,
  // `onError` may append a stand-in to the output it is given and answers
  // how many input bytes to skip.
  template <typename OnError>
  std::string Run(std::string_view in, OnError onError) {
    std::string out;
    if (handle_ == reinterpret_cast<iconv_t>(-1)) return out;
    char* next = const_cast<char*>(in.data());
    std::size_t left = in.size();
    std::array<char, 4096> buffer;
    while (left > 0) {
      char* put = buffer.data();
      std::size_t room = buffer.size();
      std::size_t result = iconv(handle_, &next, &left, &put, &room);
      out.append(buffer.data(), put);
      if (result != static_cast<std::size_t>(-1) || errno == E2BIG) continue;
      std::size_t skip = std::min(left, onError(out));
      next += skip;
      left -= skip;
      iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    }
    return out;
  }

 private:
  iconv_t handle_;
};

// glibc's "WCHAR_T" is the wchar_t of the process: UCS-4 in host order.
Conversion Decode(const char* encoding, std::string_view bytes, std::size_t unitSize) {
  Conversion conversion;
  std::string wide = Converter("WCHAR_T", encoding).Run(bytes, [&](std::string& out) {
    constexpr wchar_t kReplacement = L'\xFFFD';
    out.append(reinterpret_cast<const char*>(&kReplacement), sizeof kReplacement);
    ++conversion.undecoded;
    return unitSize;
  });
  conversion.text.resize(wide.size() / sizeof(wchar_t));
  std::memcpy(conversion.text.data(), wide.data(), conversion.text.size() * sizeof(wchar_t));
  return conversion;
}

}  // namespace

DecodedText DecodeText(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark))
    return {Decode("UTF-8", bytes.substr(kUtf8Mark.size()), 1).text, TextEncoding::kUtf8Bom};
  if (bytes.starts_with(kUtf16LeMark))
    return {Decode("UTF-16LE", bytes.substr(kUtf16LeMark.size()), 2).text, TextEncoding::kUtf16LeBom};
  if (bytes.starts_with(kUtf16BeMark))
    return {Decode("UTF-16BE", bytes.substr(kUtf16BeMark.size()), 2).text, TextEncoding::kUtf16BeBom};
  Conversion utf8 = Decode("UTF-8", bytes, 1);
  if (utf8.undecoded == 0) return {std::move(utf8.text), TextEncoding::kUtf8};
  Conversion gb18030 = Decode("GB18030", bytes, 1);
  if (gb18030.undecoded < utf8.undecoded) return {std::move(gb18030.text), TextEncoding::kGb18030};
  return {std::move(utf8.text), TextEncoding::kUtf8};
}

std::string EncodeText(std::wstring_view text, TextEncoding encoding) {
  std::string_view mark;
  const char* name = "UTF-8";
  switch (encoding) {
    case TextEncoding::kUtf8:
      break;
    case TextEncoding::kUtf8Bom:
      mark = kUtf8Mark;
      break;
    case TextEncoding::kUtf16LeBom:
      mark = kUtf16LeMark;
      name = "UTF-16LE";
      break;
    case TextEncoding::kUtf16BeBom:
      mark = kUtf16BeMark;
      name = "UTF-16BE";
      break;
    case TextEncoding::kGb18030:
      name = "GB18030";
      break;
  }
  Converter converter(name, "WCHAR_T");
  const std::string replacement =
      converter.Run(std::string_view(reinterpret_cast<const char*>(L"\xFFFD"), sizeof(wchar_t)),
                    [](std::string&) { return sizeof(wchar_t); });
  std::string_view wide(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
  return std::string(mark) + converter.Run(wide, [&](std::string& out) {
    out += replacement;
    return sizeof(wchar_t);
  });
}

std::optional<DecodedText> ReadTextFile(std::wstring_view path) {
  std::optional<std::string> bytes = ReadFileBytes(path);
  if (!bytes) return std::nullopt;
  return DecodeText(*bytes);
}

}  // namespace platform
