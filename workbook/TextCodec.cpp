#include "TextCodec.h"

#include <cwctype>

namespace workbook {
namespace {
constexpr char32_t kReplacement = 0xFFFD;

bool IsScalar(char32_t c) { return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF); }
}  // namespace

std::wstring FromUtf16(std::u16string_view units) {
  std::wstring text;
  text.reserve(units.size());
  for (size_t i = 0; i < units.size(); ++i) {
    char32_t c = units[i];
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < units.size() && units[i + 1] >= 0xDC00 &&
        units[i + 1] <= 0xDFFF) {
      c = 0x10000 + ((c - 0xD800) << 10) + (units[++i] - 0xDC00);
    } else if (c >= 0xD800 && c <= 0xDFFF) {
      c = kReplacement;
    }
    text += static_cast<wchar_t>(c);
  }
  return text;
}

std::u16string ToUtf16(std::wstring_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (wchar_t wide : text) {
    char32_t c = static_cast<char32_t>(wide);
    if (!IsScalar(c)) c = kReplacement;
    if (c >= 0x10000) {
      c -= 0x10000;
      units += static_cast<char16_t>(0xD800 + (c >> 10));
      units += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
      units += static_cast<char16_t>(c);
    }
  }
  return units;
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  size_t i = 0;
  while (i < bytes.size()) {
    unsigned char lead = static_cast<unsigned char>(bytes[i]);
    int extra = lead < 0x80             ? 0
                : (lead & 0xE0) == 0xC0 ? 1
                : (lead & 0xF0) == 0xE0 ? 2
                : (lead & 0xF8) == 0xF0 ? 3
                                        : -1;
    char32_t c = extra == 0 ? lead : extra == 1 ? lead & 0x1F : extra == 2 ? lead & 0x0F : lead & 0x07;
    bool valid = extra >= 0 && i + extra < bytes.size();
    for (int k = 1; valid && k <= extra; ++k) {
      unsigned char next = static_cast<unsigned char>(bytes[i + k]);
      valid = (next & 0xC0) == 0x80;
      c = c << 6 | (next & 0x3F);
    }
    static constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    if (!valid || c < kSmallest[extra] || !IsScalar(c)) {
      text += static_cast<wchar_t>(kReplacement);
      ++i;
      continue;
    }
    text += static_cast<wchar_t>(c);
    i += extra + 1;
  }
  return text;
}

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (wchar_t wide : text) {
    char32_t c = static_cast<char32_t>(wide);
    if (!IsScalar(c)) c = kReplacement;
    if (c < 0x80) {
      bytes += static_cast<char>(c);
    } else if (c < 0x800) {
      bytes += static_cast<char>(0xC0 | c >> 6);
      bytes += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      bytes += static_cast<char>(0xE0 | c >> 12);
      bytes += static_cast<char>(0x80 | (c >> 6 & 0x3F));
      bytes += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      bytes += static_cast<char>(0xF0 | c >> 18);
      bytes += static_cast<char>(0x80 | (c >> 12 & 0x3F));
      bytes += static_cast<char>(0x80 | (c >> 6 & 0x3F));
      bytes += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return bytes;
}

bool SameSheetName(std::wstring_view a, std::wstring_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && std::towlower(a[i]) != std::towlower(b[i])) return false;
  }
  return true;
}

}  // namespace workbook
