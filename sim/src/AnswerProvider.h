// The chooser answers of a host with someone in front of it: asked when the
// script holds none.
#pragma once

#include <optional>
#include <string>

namespace sim {

class ToolkitCall;

// nullopt without a provider, or when the user cancels.
std::optional<std::wstring> AskAnswerProvider(const std::string& callName, const std::wstring& label,
                                              const std::wstring& defaultPath);

// The answer of the user to the chooser of the running call: the script's
// next one when one is queued, else the provider's, asked with the host
// unlocked for the rest of the call (the user may take a while, and the
// host's timers go on meanwhile).
std::optional<std::wstring> UserAnswer(ToolkitCall& call, const std::string& callName,
                                       const std::wstring& label, const std::wstring& defaultPath);

}  // namespace sim
