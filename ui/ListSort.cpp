#include "ListSort.h"

#include <algorithm>
#include <cstring>

#include "CodePage.h"

namespace {
// The sort buffer of the list held 260 bytes with its terminator.
constexpr size_t kSortTextBytes = 259;
}  // namespace

int CompareListText(const std::wstring& a, const std::wstring& b) {
  std::string narrowA = platform::ToNarrow(a).substr(0, kSortTextBytes);
  std::string narrowB = platform::ToNarrow(b).substr(0, kSortTextBytes);
  return std::strcmp(narrowA.c_str(), narrowB.c_str());
}
