// The system's narrow code page: UTF-8 on POSIX, the ANSI code page on Windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

std::string ToNarrow(std::wstring_view text);
// Bytes that are not valid in the code page become U+FFFD.
std::wstring ToWide(std::string_view text);

// atoi/atof of a wide text, through the narrow code page as the original does.
// Numbers are written with a decimal point under every locale.
int WideToInt(std::wstring_view text);
double WideToDouble(std::wstring_view text);

// The whole text as a finite number written with a decimal point, under
// every locale; nullopt for anything else (blanks, "nan", "inf", "5,4").
std::optional<double> ParseNumber(std::string_view text);

// printf's "%.<decimals>f" (no decimals below 0) with a decimal point under
// every locale.
std::wstring FormatFixed(double value, int decimals);

}  // namespace platform
