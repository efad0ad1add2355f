#include "ProfileDocument.h"

#include <algorithm>
#include <cwctype>

namespace config {
namespace {

constexpr auto npos = std::wstring_view::npos;

}  // namespace

bool SameProfileName(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(a, b, [](wchar_t x, wchar_t y) { return std::towlower(x) == std::towlower(y); });
}

std::wstring_view TrimBlanks(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t";
  std::size_t first = text.find_first_not_of(kBlanks);
  if (first == npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

ProfileDocument::ProfileDocument(std::string_view bytes) {
  platform::DecodedText decoded = platform::DecodeText(bytes);
  encoding = decoded.encoding;
  std::wstring_view text = decoded.text;
  while (!text.empty()) {
    std::size_t lineFeed = text.find(L'\n');
    if (lineFeed == npos) {
      lines.push_back(ParseLine(std::wstring(text), L""));
      break;
    }
    std::size_t textEnd = lineFeed > 0 && text[lineFeed - 1] == L'\r' ? lineFeed - 1 : lineFeed;
    lines.push_back(ParseLine(std::wstring(text.substr(0, textEnd)),
                              std::wstring(text.substr(textEnd, lineFeed + 1 - textEnd))));
    text.remove_prefix(lineFeed + 1);
  }
  if (!lines.empty() && !lines.front().ending.empty()) newLine = lines.front().ending;
}

ProfileDocument::Line ProfileDocument::ParseLine(std::wstring text, std::wstring ending) {
  Line line;
  line.text = std::move(text);
  line.ending = std::move(ending);
  std::wstring_view trimmed = TrimBlanks(line.text);
  if (trimmed.starts_with(L'[')) {
    line.kind = Kind::kSection;
    std::size_t close = trimmed.find(L']');
    line.name = TrimBlanks(trimmed.substr(1, close == npos ? npos : close - 1));
    return line;
  }
  std::size_t equals = trimmed.find(L'=');
  line.name = TrimBlanks(trimmed.substr(0, equals));
  if (equals != npos) line.value = std::wstring(TrimBlanks(trimmed.substr(equals + 1)));
  bool isKey = !line.name.empty() && !trimmed.starts_with(L';');
  line.kind = isKey ? Kind::kEntry : Kind::kIgnored;
  return line;
}

std::string ProfileDocument::Bytes() const {
  std::wstring text;
  for (const Line& line : lines) text += line.text + line.ending;
  return platform::EncodeText(text, encoding);
}

std::vector<std::wstring> ProfileDocument::SectionNames() const {
  std::vector<std::wstring> names;
  for (const Line& line : lines) {
    if (line.kind == Kind::kSection && !line.name.empty()) names.push_back(line.name);
  }
  return names;
}

std::vector<ProfileEntry> ProfileDocument::Entries(std::wstring_view section) const {
  std::vector<ProfileEntry> entries;
  std::optional<std::size_t> header = FindSection(section);
  if (!header) return entries;
  for (std::size_t i = *header + 1; i < SectionEnd(*header); ++i) {
    if (lines[i].kind == Kind::kEntry) entries.push_back({lines[i].name, lines[i].value});
  }
  return entries;
}

void ProfileDocument::SetValue(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
  std::optional<std::size_t> header = FindSection(section);
  if (!header) {
    InsertLine(lines.size(), L"[" + std::wstring(section) + L"]");
    InsertLine(lines.size(), std::wstring(key) + L"=" + std::wstring(value));
    return;
  }
  // Behind the last key line, so that blank lines closing the section stay
  // between it and the next one.
  std::size_t insertAt = *header + 1;
  for (std::size_t i = *header + 1; i < SectionEnd(*header); ++i) {
    Line& line = lines[i];
    if (line.kind != Kind::kEntry) continue;
    if (SameProfileName(line.name, key)) {
      line = ParseLine(line.name + L"=" + std::wstring(value), line.ending);
      return;
    }
    insertAt = i + 1;
  }
  InsertLine(insertAt, std::wstring(key) + L"=" + std::wstring(value));
}

std::optional<std::size_t> ProfileDocument::FindSection(std::wstring_view section) const {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].kind == Kind::kSection && SameProfileName(lines[i].name, section)) return i;
  }
  return std::nullopt;
}

std::size_t ProfileDocument::SectionEnd(std::size_t header) const {
  std::size_t end = header + 1;
  while (end < lines.size() && lines[end].kind != Kind::kSection) ++end;
  return end;
}

void ProfileDocument::InsertLine(std::size_t at, const std::wstring& text) {
  // Only the file's last line can lack an ending; it needs one before a line follows.
  if (at > 0 && lines[at - 1].ending.empty()) lines[at - 1].ending = newLine;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), ParseLine(text, newLine));
}

}  // namespace config
