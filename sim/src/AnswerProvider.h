// The chooser answers of a host with someone in front of it: asked when the
// script holds none.
#pragma once

#include <optional>
#include <string>

namespace sim {

// nullopt without a provider, or when the user cancels.
std::optional<std::wstring> AskAnswerProvider(const std::string& callName, const std::wstring& label,
                                              const std::wstring& defaultPath);

}  // namespace sim
