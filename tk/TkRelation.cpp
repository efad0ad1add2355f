#include "TkRelation.h"

#include <algorithm>

#include "ProArray.h"
#include "ProMdl.h"
#include "ProWstring.h"

namespace {

constexpr std::size_t kLineBuffer = 260;

}  // namespace

int CTkRelation::GetMdlRelset(ProMdl mdl, ProRelset& relset) const {
  ProModelitem item{};
  if (ProError status = ProMdlToModelitem(mdl, &item)) return status;
  return GetItemRelset(item, relset);
}

int CTkRelation::GetItemRelset(const ProModelitem& item, ProRelset& relset) const {
  ProModelitem copy = item;
  return ProModelitemToRelset(&copy, &relset);
}

int CTkRelation::GetRelationLines(const ProRelset& relset, std::vector<std::wstring>& lines) const {
  lines.clear();
  ProWstring* array = nullptr;
  if (ProError status = ProArrayAlloc(0, sizeof(ProWstring), 1, reinterpret_cast<ProArray*>(&array)))
    return status;
  ProRelset set = relset;
  if (ProError status = ProRelsetRelationsGet(&set, &array)) {
    ProWstringproarrayFree(array);
    return status;
  }
  int count = 0;
  ProArraySizeGet(array, &count);
  for (int i = 0; i < count; ++i) lines.emplace_back(array[i]);
  ProWstringproarrayFree(array);
  return 0;
}

int CTkRelation::SetRelationLines(const ProRelset& relset, const std::vector<std::wstring>& lines) const {
  // A longer line gets a buffer to fit: it is passed whole, never cut.
  std::vector<std::vector<wchar_t>> buffers;
  for (const std::wstring& line : lines) {
    std::vector<wchar_t>& buffer = buffers.emplace_back(std::max(kLineBuffer, line.size() + 1), L'\0');
    std::copy(line.begin(), line.end(), buffer.begin());
  }
  ProWstring* array = nullptr;
  int count = static_cast<int>(lines.size());
  if (ProError status = ProArrayAlloc(count, sizeof(ProWstring), 1, reinterpret_cast<ProArray*>(&array)))
    return status;
  for (int i = 0; i < count; ++i) array[i] = buffers[i].data();
  ProRelset set = relset;
  ProError status = ProRelsetRelationsSet(&set, array, count);
  ProArrayFree(reinterpret_cast<ProArray*>(&array));
  if (status != PRO_TK_NO_ERROR) return status;
  ProRelsetRegenerate(&set);
  return 0;
}
