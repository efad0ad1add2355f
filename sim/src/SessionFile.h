// session.json of a session directory.
#pragma once

#include "ProToolkit.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace sim {

struct SessionFile {
  std::vector<std::wstring> open;  // model file names
  std::optional<std::wstring> current;
  std::map<std::wstring, std::wstring> configOptions;
  std::vector<std::wstring> searchPath;  // relative to the session directory
};

// PRO_TK_E_NOT_FOUND without the file, PRO_TK_INVALID_FILE for bad content;
// `error` then says what is wrong and where.
ProError ReadSessionFile(const std::filesystem::path& file, SessionFile& session, std::string& error);

// A configuration option as the session gives it to the host: the value of
// an option of a directory or a file (its name ends in "_dir" or "_file")
// made absolute from the session directory, so that a session can be moved;
// any other value as it stands.
std::wstring SessionOptionValue(const std::wstring& name, const std::wstring& value,
                                const std::filesystem::path& sessionDir);

}  // namespace sim
