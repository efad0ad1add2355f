#include "RelationStore.h"

#include <algorithm>

#include "TkFile.h"
#include "TkText.h"

std::wstring GetRelationDir() { return CTkFile().GetAppDir() + L"\\Relation\\"; }

void ListRelationNames(std::vector<std::wstring>& names) {
  CTkFile().ListFiles(GetRelationDir(), names);
  for (std::wstring& name : names) name = name.substr(0, name.rfind(L'.'));
  std::ranges::stable_sort(names, {}, [](const std::wstring& name) { return tktext::Upper(name); });
}

std::wstring RelationPath(const std::wstring& name) { return GetRelationDir() + name + L".txt"; }

NewRelationName CheckNewRelationName(std::wstring& name, const std::vector<std::wstring>& names) {
  for (const std::wstring& listed : names) {
    name = tktext::Upper(name);
    if (name == tktext::Upper(listed)) return NewRelationName::kExists;
  }
  return name.empty() ? NewRelationName::kEmpty : NewRelationName::kAccepted;
}
