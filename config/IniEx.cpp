#include "IniEx.h"

#include <algorithm>

#include "ProfileDocument.h"

namespace {
constexpr wchar_t kBlank = L' ';
constexpr wchar_t kStoredBlank = L'\u25A1';
constexpr wchar_t kCommentMark = L'#';
}  // namespace

CIniEx::CIniEx(config::IniFileIo& io) : CIniReader(io) {}

CIniReader CIniEx::ReaderOf(const std::wstring& file) const {
  CIniReader reader(Io());
  reader.SetIniFile(file);
  return reader;
}

int CIniEx::GetValue(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                     std::wstring& out) const {
  out.clear();
  CIniReader reader = ReaderOf(file);
  if (!reader.SectionExists(section)) return 1;
  std::wstring stored = reader.GetKeyValue(key, section);
  // Values are not escaped on writing, so a "#" of a value ends it here.
  out = DecodeBlank(stored.substr(0, stored.find(kCommentMark)));
  return 0;
}

int CIniEx::SetValue(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                     const std::wstring& value, const std::wstring& comment) const {
  CIniReader reader = ReaderOf(file);
  // The delivered files carry every section a setter needs; a setter that
  // finds none must leave the disk alone rather than invent one.
  if (!reader.SectionExists(section)) return 1;
  std::wstring stored = EncodeBlank(value);
  if (!comment.empty()) stored += kCommentMark + comment;
  reader.SetKey(stored, key, section);
  return 0;
}

int CIniEx::GetSection(const std::wstring& file, const std::wstring& section, std::vector<std::wstring>& keys,
                       std::vector<std::wstring>& values, std::vector<std::wstring>& comments) const {
  keys.clear();
  values.clear();
  comments.clear();
  CIniReader reader = ReaderOf(file);
  if (!reader.SectionExists(section)) return 1;
  for (const std::wstring& line : reader.GetSectionData(section)) {
    std::size_t equals = line.rfind(L'=');
    if (equals == std::wstring::npos) {
      keys.push_back(line);
      values.emplace_back();
      comments.emplace_back();
      continue;
    }
    keys.emplace_back(config::TrimBlanks(std::wstring_view(line).substr(0, equals)));
    std::wstring rest = line.substr(equals + 1);
    std::size_t hash = rest.find(kCommentMark);
    values.push_back(DecodeBlank(rest.substr(0, hash)));
    comments.push_back(hash == std::wstring::npos ? std::wstring() : rest.substr(hash + 1));
  }
  return 0;
}

int CIniEx::GetSectionNames(const std::wstring& file, std::vector<std::wstring>& names) const {
  CIniReader reader = ReaderOf(file);
  names = reader.GetSectionNames();
  return 0;
}

std::wstring CIniEx::EncodeBlank(std::wstring text) {
  std::ranges::replace(text, kBlank, kStoredBlank);
  return text;
}

std::wstring CIniEx::DecodeBlank(std::wstring text) {
  std::ranges::replace(text, kStoredBlank, kBlank);
  return text;
}
