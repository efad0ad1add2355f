// The text paths the run-time builds from the application's text directory T
// and the host's language: T\text\<language> when that directory exists, else
// the same for the fallback language, else T\text itself.
#pragma once

#include <string>

namespace protkrt {

struct TextPaths {
  std::wstring message;   // message files
  std::wstring menu;      // menu files
  std::wstring resource;  // icons
};

// The directory name of a host language code; empty for an unknown code.
std::wstring LanguageDirName(int language);
constexpr int kFallbackLanguage = 6;

TextPaths BuildTextPaths(const std::wstring& textDir, int language);

}  // namespace protkrt
