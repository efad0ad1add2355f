#include "RowNumber.h"

#include <cwchar>

std::wstring RowNumberText(int row, int digits) {
  wchar_t text[16];
  std::swprintf(text, 16, L"%0*d", digits, row + 1);
  return text;
}
