// The run-time's record of the application's text directory.
#pragma once

#include <string>

namespace protkrt {

// Set by the start-up from what the host passed; tests set it directly.
void SetApplTextPath(const std::wstring& textDir);
std::wstring ApplTextPath();

}  // namespace protkrt
