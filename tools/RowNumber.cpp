#include "RowNumber.h"

#include <cwchar>

std::wstring RowNumberText(int row) {
  wchar_t text[16];
  std::swprintf(text, 16, L"%02d", row + 1);
  return text;
}
