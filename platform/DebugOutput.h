// Strings for a debugger, never for a user.
#pragma once

#include <functional>
#include <string_view>

namespace platform {

void OutputDebugString(std::wstring_view text);

// Where debug strings go. Without a sink they reach standard error only when
// the environment variable BOM_DEBUG_OUTPUT is set. Returns the previous sink.
using DebugSink = std::function<void(std::wstring_view)>;
DebugSink SetDebugSink(DebugSink sink);

}  // namespace platform
