#include "TextPaths.h"

#include <cwchar>

#include "Files.h"

namespace protkrt {
namespace {

// Every path has the text directory first and the language name, if any,
// fourth; the separators between are backslashes.
std::wstring Format(const wchar_t* format, const std::wstring& a, const std::wstring& b = L"") {
  wchar_t buffer[1024];
  std::swprintf(buffer, 1024, format, a.c_str(), L'\\', L'\\', b.c_str(), L'\\');
  return buffer;
}

}  // namespace

std::wstring LanguageDirName(int language) {
  switch (language) {
    case 1:
      return L"chinese_cn";
    case 2:
      return L"chinese_tw";
    case 3:
      return L"german";
    case 4:
      return L"french";
    case 5:
      return L"japanese";
    case 6:
      return L"usascii";
    case 7:
      return L"italian";
    case 8:
      return L"spanish";
    case 9:
      return L"korean";
    case 10:
      return L"russian";
    default:
      return L"";
  }
}

TextPaths BuildTextPaths(const std::wstring& textDir, int language) {
  for (int code : {language, kFallbackLanguage}) {
    std::wstring name = LanguageDirName(code);
    std::wstring dir = Format(L"%ls%lctext%lc%ls", textDir, name);
    if (!name.empty() && platform::DirectoryExists(dir)) {
      return {dir, Format(L"%ls%lctext%lc%ls%lcmenus", textDir, name),
              Format(L"%ls%lctext%lc%ls%lcresource", textDir, name)};
    }
  }
  return {Format(L"%ls%lctext", textDir), Format(L"%ls%lctext%lcmenus", textDir),
          Format(L"%ls%lctext%lcresource", textDir)};
}

}  // namespace protkrt
