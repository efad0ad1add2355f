#include "MessageFile.h"

#include "CodePage.h"
#include "FileLookup.h"
#include "Files.h"

#include <optional>
#include <vector>

namespace sim {
namespace {

std::vector<std::string_view> Lines(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  std::vector<std::string_view> lines;
  while (!bytes.empty()) {
    size_t end = bytes.find('\n');
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  }
  return lines;
}

// The directory of the text paths, the message or the menu one.
using TextDir = std::wstring protkrt::TextPaths::*;

MessageLookup Lookup(const HostState& state, TextDir dir, const wchar_t* fileName, const char* key) {
  if (!state.textPaths || !fileName || !*fileName) return {PRO_TK_E_NOT_FOUND};
  std::optional<std::filesystem::path> file =
      FindFileNoCase(platform::NativePath((*state.textPaths).*dir), fileName);
  if (!file) return {PRO_TK_E_NOT_FOUND};
  std::map<std::string, std::wstring> messages = ParseMessageFile(ReadBytes(*file).value_or(""));
  auto found = key ? messages.find(key) : messages.end();
  if (found == messages.end()) return {PRO_TK_MSG_NOT_FOUND};
  return {PRO_TK_NO_ERROR, found->second};
}

}  // namespace

std::map<std::string, std::wstring> ParseMessageFile(std::string_view bytes) {
  std::vector<std::string_view> lines = Lines(bytes);
  std::map<std::string, std::wstring> messages;
  size_t i = 0;
  while (i < lines.size()) {
    // Blank lines between groups are tolerated.
    if (lines[i].empty()) {
      ++i;
      continue;
    }
    std::string_view key = lines[i];
    std::string_view english = i + 1 < lines.size() ? lines[i + 1] : std::string_view();
    std::string_view translation = i + 2 < lines.size() ? lines[i + 2] : std::string_view("#");
    std::string_view shown = translation == "#" || translation.empty() ? english : translation;
    messages.emplace(std::string(key), platform::ToWide(shown));
    i += 4;
  }
  return messages;
}

MessageLookup LookupMessage(const HostState& state, const wchar_t* fileName, const char* key) {
  return Lookup(state, &protkrt::TextPaths::message, fileName, key);
}

MessageLookup LookupMenuText(const HostState& state, const wchar_t* fileName, const char* key) {
  return Lookup(state, &protkrt::TextPaths::menu, fileName, key);
}

}  // namespace sim
