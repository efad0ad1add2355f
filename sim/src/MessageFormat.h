// Substitution of a message's placeholders: %Ns (char*, narrow code page),
// %Nw (wchar_t*), %Nd (int*) and %Nf (double*), N being the argument's index
// 0..9. The arguments are pointers, one per index, read in index order; an
// index takes the type of its first placeholder.
#pragma once

#include <cstdarg>
#include <string>
#include <string_view>

namespace sim {

std::wstring FormatMessage(std::wstring_view format, va_list args);

}  // namespace sim
