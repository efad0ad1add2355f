// The settings' value format over CIniReader: a blank in a value is stored as
// U+25A1 "□", and whatever follows the first "#" of a stored value is a
// comment. Each operation reads or writes its file through a reader of its
// own, so one CIniEx serves any number of files.
//
// The results are 0 when the section was found and 1 when it was not.
#pragma once

#include <string>
#include <vector>

#include "IniReader.h"

class CIniEx : public CIniReader {
 public:
  explicit CIniEx(config::IniFileIo& io = config::DiskIniFileIo());
  virtual ~CIniEx() = default;

  // Empties `out`, then gives the decoded value without its comment.
  int GetValue(const std::wstring& file, const std::wstring& section, const std::wstring& key,
               std::wstring& out) const;
  // Writes the encoded value, followed by "#" and the comment when there is
  // one. Never creates a section or a file: on a missing one it writes
  // nothing.
  int SetValue(const std::wstring& file, const std::wstring& section, const std::wstring& key,
               const std::wstring& value, const std::wstring& comment) const;
  // Empties the three lists, then appends one entry to each for every line
  // of the section: the key, the decoded value and the raw comment. A line
  // splits at its last "=", so a key can hold "=" and a value cannot.
  int GetSection(const std::wstring& file, const std::wstring& section, std::vector<std::wstring>& keys,
                 std::vector<std::wstring>& values, std::vector<std::wstring>& comments) const;
  // Empties `names`, then appends the names of all sections; always 0.
  int GetSectionNames(const std::wstring& file, std::vector<std::wstring>& names) const;

  static std::wstring EncodeBlank(std::wstring text);
  static std::wstring DecodeBlank(std::wstring text);

 private:
  CIniReader ReaderOf(const std::wstring& file) const;
};
