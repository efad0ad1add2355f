#include "MessageFormat.h"

#include "CodePage.h"

#include <algorithm>
#include <array>
#include <optional>

namespace sim {
namespace {

constexpr size_t kMaxArgs = 10;

struct Placeholder {
  size_t index;
  wchar_t type;
};

// The placeholder at `at`, which holds a '%'.
std::optional<Placeholder> PlaceholderAt(std::wstring_view format, size_t at) {
  if (at + 2 >= format.size()) return std::nullopt;
  wchar_t digit = format[at + 1];
  wchar_t type = format[at + 2];
  if (digit < L'0' || digit > L'9') return std::nullopt;
  if (type != L's' && type != L'w' && type != L'd' && type != L'f') return std::nullopt;
  return Placeholder{static_cast<size_t>(digit - L'0'), type};
}

std::wstring ArgText(wchar_t type, const void* arg) {
  if (!arg) return L"";
  switch (type) {
    case L's':
      return platform::ToWide(static_cast<const char*>(arg));
    case L'w':
      return static_cast<const wchar_t*>(arg);
    case L'd':
      return std::to_wstring(*static_cast<const int*>(arg));
    default:
      return platform::FormatFixed(*static_cast<const double*>(arg), 6);
  }
}

}  // namespace

std::wstring FormatMessage(std::wstring_view format, va_list args) {
  std::array<wchar_t, kMaxArgs> types{};
  size_t count = 0;
  for (size_t at = format.find(L'%'); at != std::wstring_view::npos; at = format.find(L'%', at + 1)) {
    if (auto placeholder = PlaceholderAt(format, at)) {
      if (!types[placeholder->index]) types[placeholder->index] = placeholder->type;
      count = std::max(count, placeholder->index + 1);
    }
  }

  std::array<const void*, kMaxArgs> pointers{};
  for (size_t i = 0; i < count; ++i) {
    switch (types[i]) {
      case L's':
        pointers[i] = va_arg(args, const char*);
        break;
      case L'w':
        pointers[i] = va_arg(args, const wchar_t*);
        break;
      case L'd':
        pointers[i] = va_arg(args, const int*);
        break;
      case L'f':
        pointers[i] = va_arg(args, const double*);
        break;
      default:  // an index that no placeholder uses
        va_arg(args, const void*);
        break;
    }
  }

  std::wstring out;
  for (size_t at = 0; at < format.size();) {
    auto placeholder = format[at] == L'%' ? PlaceholderAt(format, at) : std::nullopt;
    if (placeholder) {
      out += ArgText(types[placeholder->index], pointers[placeholder->index]);
      at += 3;
    } else {
      out += format[at++];
    }
  }
  return out;
}

}  // namespace sim
