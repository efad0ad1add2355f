// Existence, deletion and plain text files of CTkFile.
#include "TkFile.h"

#include "CodePage.h"
#include "FileWrite.h"
#include "Files.h"
#include "TextFile.h"
#include "Trash.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>

namespace {

// Text mode as the system's file layer has it: a line ends at "\n", and a
// "\r" before it belongs to the line end.
bool ReadEachLine(const std::wstring& path, std::vector<std::wstring>& lines) {
  std::optional<platform::DecodedText> file = platform::ReadTextFile(path);
  if (!file) return false;
  std::wstring_view text = file->text;
  while (!text.empty()) {
    std::wstring_view line = text.substr(0, text.find(L'\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with(L'\r')) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return true;
}

}  // namespace

int CTkFile::FileExists(const std::wstring& path) const { return platform::FileExists(path) ? 1 : 0; }

int CTkFile::DelFile(const std::wstring& path, int permanent) const {
  bool deleted = permanent ? platform::DeletePermanently(path) : platform::MoveToTrash(path);
  return deleted ? 1 : 0;
}

int CTkFile::ReadLines(const std::wstring& path, std::vector<std::wstring>& lines) const {
  lines.clear();
  return ReadEachLine(path, lines) ? 1 : 0;
}

int CTkFile::ReadFileText(const std::wstring& path, std::wstring& text) const {
  text.clear();
  std::vector<std::wstring> lines;
  if (!ReadEachLine(path, lines)) return 0;
  for (const std::wstring& line : lines) text += line + L"\n";
  return 1;
}

// The stored text is replaced whole or not at all: a failure leaves the old
// one. The failure's number is the open's result; a refusal numbered 1 would
// read as success and is given as a denied access, as the system reports it.
int CTkFile::AppendToFile(const std::wstring& path, const std::wstring& text) const {
  std::error_code error = platform::WriteFileAtomically(path, platform::ToNarrow(text));
  if (!error) return 1;
  return error.value() == 1 ? EACCES : error.value();
}
