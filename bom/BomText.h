// Text helpers of the engine: names and keys compare upper-cased.
#pragma once

#include <string>

std::wstring UpperText(std::wstring text);
std::wstring TrimBlanks(const std::wstring& text);
