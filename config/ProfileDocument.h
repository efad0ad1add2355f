// One INI file as its lines: what the profile functions read from it and the
// one edit they make. Every line keeps its own text and line ending, and the
// file its encoding, so a write changes nothing but the line it is about.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "TextFile.h"

namespace config {

// Section and key names are compared without regard to case.
bool SameProfileName(std::wstring_view a, std::wstring_view b);
// Drops blanks and tabs at both ends.
std::wstring_view TrimBlanks(std::wstring_view text);

struct ProfileEntry {
  std::wstring key;
  std::optional<std::wstring> value;  // nullopt for a line without "="
};

class ProfileDocument {
 public:
  // In any encoding platform::DecodeText takes; CRLF and LF line ends.
  explicit ProfileDocument(std::string_view bytes);

  // The file as it is to be written: in the encoding it was read in, byte
  // order mark included (UTF-8 for a new file), new lines ending as the
  // file's first line ends (LF for a new file).
  std::string Bytes() const;

  // Non-empty section names in file order.
  std::vector<std::wstring> SectionNames() const;
  // The key lines of the first section of that name in file order, blanks
  // around key and value dropped; empty when there is no such section. Blank
  // lines and comment lines (";") are no entries.
  std::vector<ProfileEntry> Entries(std::wstring_view section) const;

  // Replaces the key's line, keeping the key as the file spells it, or adds
  // "key=value" behind the section's last key line; a missing section is
  // appended to the file with the key.
  void SetValue(std::wstring_view section, std::wstring_view key, std::wstring_view value);

 private:
  enum class Kind { kIgnored, kSection, kEntry };
  struct Line {
    std::wstring text;    // without the line ending
    std::wstring ending;  // "\r\n", "\n", or "" for an unterminated last line
    Kind kind = Kind::kIgnored;
    std::wstring name;  // section name or key
    std::optional<std::wstring> value;
  };

  static Line ParseLine(std::wstring text, std::wstring ending);
  std::optional<std::size_t> FindSection(std::wstring_view section) const;
  // Index of the line that ends the section starting at `header`.
  std::size_t SectionEnd(std::size_t header) const;
  void InsertLine(std::size_t at, const std::wstring& text);

  platform::TextEncoding encoding = platform::TextEncoding::kUtf8;
  std::vector<Line> lines;
  std::wstring newLine = L"\n";
};

}  // namespace config
