// The order of a list sorted by a header click: the cells' texts in the
// system's narrow code page, cut to 259 bytes and compared byte by byte, so
// numbers sort as texts and "10" comes before "9".
#pragma once

#include <string>

// Below 0, 0 or above 0 as strcmp answers.
int CompareListText(const std::wstring& a, const std::wstring& b);
