#include "CodePage.h"

#include <locale.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace platform {

std::string ToNarrow(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (wchar_t wc : text) {
    auto c = static_cast<char32_t>(wc);
    if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) c = 0xFFFD;
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (c >> 18));
      out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}

std::wstring ToWide(std::string_view text) {
  std::wstring out;
  out.reserve(text.size());
  size_t i = 0;
  while (i < text.size()) {
    auto b = static_cast<unsigned char>(text[i]);
    int extra = b < 0x80 ? 0 : (b >> 5) == 0x6 ? 1 : (b >> 4) == 0xE ? 2 : (b >> 3) == 0x1E ? 3 : -1;
    if (extra < 0 || i + extra >= text.size() + (extra == 0 ? 1 : 0)) {
      out += L'\xFFFD';
      ++i;
      continue;
    }
    char32_t c = extra == 0 ? b : b & (0x3F >> extra);
    bool ok = true;
    for (int k = 1; k <= extra; ++k) {
      auto cont = static_cast<unsigned char>(text[i + k]);
      if ((cont & 0xC0) != 0x80) {
        ok = false;
        break;
      }
      c = (c << 6) | (cont & 0x3F);
    }
    if (!ok) {
      out += L'\xFFFD';
      ++i;
      continue;
    }
    out += static_cast<wchar_t>(c);
    i += extra + 1;
  }
  return out;
}

int WideToInt(std::wstring_view text) { return std::atoi(ToNarrow(text).c_str()); }

double WideToDouble(std::wstring_view text) {
  static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
  return strtod_l(ToNarrow(text).c_str(), nullptr, cLocale);
}

std::optional<double> ParseNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc() || rest != text.data() + text.size() || !std::isfinite(value))
    return std::nullopt;
  return value;
}

std::wstring FormatFixed(double value, int decimals) {
  // The longest fixed text of a double has 309 digits before the point.
  std::string text(320 + static_cast<std::size_t>(std::max(decimals, 0)), '\0');
  std::to_chars_result result = std::to_chars(text.data(), text.data() + text.size(), value,
                                              std::chars_format::fixed, std::max(decimals, 0));
  text.resize(static_cast<std::size_t>(result.ptr - text.data()));
  return std::wstring(text.begin(), text.end());
}

}  // namespace platform
