#include "BomText.h"

#include <cwctype>

std::wstring UpperText(std::wstring text) {
  for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(c));
  return text;
}

std::wstring TrimBlanks(const std::wstring& text) {
  size_t first = text.find_first_not_of(L' ');
  if (first == std::wstring::npos) return L"";
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}
