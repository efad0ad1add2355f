// Unicode conversions between the engine's wide texts and the encodings the
// files hold: UTF-16 code units in BIFF8, UTF-8 in OOXML. The engine does not
// depend on the plug-in's code page.
#pragma once

#include <string>
#include <string_view>

namespace workbook {

std::wstring FromUtf16(std::u16string_view units);
std::u16string ToUtf16(std::wstring_view text);

// Invalid sequences become U+FFFD.
std::wstring FromUtf8(std::string_view bytes);
std::string ToUtf8(std::wstring_view text);

// Excel's sheet names compare without regard to case.
bool SameSheetName(std::wstring_view a, std::wstring_view b);

}  // namespace workbook
