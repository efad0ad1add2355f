#include "MaterialFiles.h"

#include <vector>

#include "ProUtil.h"
#include "TkFile.h"
#include "TkText.h"

namespace {

constexpr wchar_t kSeparators[] = L"\\/";

std::wstring NameBeforeFirstDot(const std::wstring& path) {
  std::wstring name = tktext::FileNameOf(path);
  return name.substr(0, name.find(L'.'));
}

}  // namespace

std::wstring FindMaterialFile(const std::wstring& directory, const std::wstring& name) {
  const std::wstring wanted = tktext::Upper(name);
  std::vector<std::wstring> files;
  CTkFile().ListMdlFilesRecursive(directory, files, PRO_FILE_LIST_ALL);
  for (const std::wstring& file : files) {
    std::wstring path = tktext::Upper(file);
    if (NameBeforeFirstDot(path) == wanted) return path;
  }
  return L"";
}

std::wstring MaterialNameOfFile(const std::wstring& path) { return tktext::Upper(NameBeforeFirstDot(path)); }

std::wstring MaterialFilePath(const std::wstring& directory, const std::wstring& name) {
  return directory + L"\\" + name + L".mtl";
}

std::wstring MaterialFileDir(const std::wstring& path) {
  std::size_t last = path.find_last_of(kSeparators);
  return last == std::wstring::npos ? L"" : path.substr(0, last);
}
