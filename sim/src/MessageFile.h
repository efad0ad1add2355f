// The host's message files: groups of four lines, the key (which is also the
// format), the English text, the translation ("#" for none) and a "#" line.
#pragma once

#include "Host.h"

#include <map>
#include <string>
#include <string_view>

namespace sim {

// Key to the text the host shows: the translation, or the English text
// where there is none. A byte order mark and CRLF line ends are accepted.
std::map<std::string, std::wstring> ParseMessageFile(std::string_view bytes);

struct MessageLookup {
  ProError status = PRO_TK_NO_ERROR;  // E_NOT_FOUND: no such file; MSG_NOT_FOUND: no such key
  std::wstring text{};
};

// The file is looked up by name, without regard to case, in the registered
// application's message directory: the files of messages shown.
MessageLookup LookupMessage(const HostState& state, const wchar_t* fileName, const char* key);
// The same in the application's menu directory: the files of the labels and
// helps of menus and commands.
MessageLookup LookupMenuText(const HostState& state, const wchar_t* fileName, const char* key);

}  // namespace sim
