#include "ParamMergeOrder.h"

#include "TkParam.h"

namespace {

bool InRange(const std::vector<std::wstring>& names, int pos) {
  return pos >= 0 && pos < static_cast<int>(names.size());
}

}  // namespace

void RemoveMergeName(std::vector<std::wstring>& names, int pos) {
  if (InRange(names, pos)) names.erase(names.begin() + pos);
}

void MoveMergeNameUp(std::vector<std::wstring>& names, int pos) {
  if (!InRange(names, pos) || pos == 0) return;
  std::wstring name = names[pos];
  names.erase(names.begin() + pos);
  names.insert(names.begin() + pos - 1, name);
}

void MoveMergeNameDown(std::vector<std::wstring>& names, int pos) {
  if (!InRange(names, pos)) return;
  std::wstring name = names[pos];
  int count = static_cast<int>(names.size());
  if (pos + 2 == count) {
    names.push_back(name);
  } else if (pos + 2 < count) {
    names.insert(names.begin() + pos + 2, name);
  }
  names.erase(names.begin() + pos);
}

std::wstring JoinParamValues(const CTkParam& param, ProMdl mdl, const std::vector<std::wstring>& names,
                             int decimals) {
  std::wstring text;
  for (const std::wstring& name : names) text += param.GetMdlParamValue(mdl, name, decimals);
  return text;
}
