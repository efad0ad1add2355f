#include "TkFile.h"

#include <cwchar>

#include "ProToolkitDll.h"
#include "ProUtil.h"

namespace {

std::wstring TrimBlanks(const std::wstring& text) {
  size_t first = text.find_first_not_of(L' ');
  if (first == std::wstring::npos) return L"";
  size_t last = text.find_last_not_of(L' ');
  return text.substr(first, last - first + 1);
}

}  // namespace

std::wstring GetAppTextRoot() {
  ProPath path{};
  if (ProToolkitApplTextPathGet(path) != PRO_TK_NO_ERROR) return L"";
  return path;
}

std::wstring CTkFile::GetAppDir() const {
  std::wstring dir = GetAppTextRoot();
  if (dir.empty() || dir.back() != L'\\') dir += L'\\';
  return dir;
}

std::wstring CTkFile::GetCurDir() const {
  ProPath path{};
  if (ProDirectoryCurrentGet(path) != PRO_TK_NO_ERROR) return L"";
  return path;
}

int CTkFile::ChangeCurDir(const std::wstring& directory, int result) const {
  if (directory.empty()) return result;
  ProPath path{};
  std::wcsncpy(path, directory.c_str(), PRO_PATH_SIZE - 1);
  ProDirectoryChange(path);
  return result;
}

void CTkFile::SplitText(const std::wstring& text, std::vector<std::wstring>& pieces, wchar_t separator,
                        int trim) const {
  pieces.clear();
  std::wstring rest = text;
  while (!rest.empty()) {
    std::wstring piece;
    size_t at = rest.find(separator);
    if (at == std::wstring::npos) {
      piece = rest;
      rest.clear();
    } else {
      piece = rest.substr(0, at);
      rest = rest.substr(at + 1);
    }
    if (trim) {
      piece = TrimBlanks(piece);
      rest = TrimBlanks(rest);
    }
    pieces.push_back(piece);
  }
}
