#include "Script.h"

#include <QString>

namespace {

bool IsBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r'; }

// Splits one line into fields; false for an unclosed quote.
bool SplitFields(const std::wstring& line, std::vector<std::wstring>& fields) {
  size_t i = 0;
  while (i < line.size()) {
    if (IsBlank(line[i])) {
      ++i;
      continue;
    }
    if (line[i] == L'#') return true;
    std::wstring field;
    if (line[i] == L'"') {
      ++i;
      while (true) {
        if (i >= line.size()) return false;
        if (line[i] == L'"') {
          if (i + 1 < line.size() && line[i + 1] == L'"') {
            field += L'"';
            i += 2;
            continue;
          }
          ++i;
          break;
        }
        field += line[i++];
      }
    } else {
      while (i < line.size() && !IsBlank(line[i])) field += line[i++];
    }
    fields.push_back(std::move(field));
  }
  return true;
}

}  // namespace

ParsedScript ParseScript(const std::string& text) {
  ParsedScript script;
  std::wstring wide = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdWString();
  if (wide.starts_with(L'\xFEFF')) wide.erase(0, 1);
  int lineNumber = 0;
  size_t start = 0;
  while (start <= wide.size()) {
    size_t end = wide.find(L'\n', start);
    if (end == std::wstring::npos) end = wide.size();
    ++lineNumber;
    ScriptStep step{lineNumber, {}};
    if (!SplitFields(wide.substr(start, end - start), step.fields)) {
      script.error = L"unclosed quote";
      script.errorLine = lineNumber;
      return script;
    }
    if (!step.fields.empty()) script.steps.push_back(std::move(step));
    start = end + 1;
  }
  return script;
}

std::wstring StepText(const ScriptStep& step) {
  std::wstring text;
  for (const std::wstring& field : step.fields) {
    if (!text.empty()) text += L' ';
    bool quote =
        field.empty() || field.starts_with(L'#') || field.find_first_of(L" \t\"") != std::wstring::npos;
    if (!quote) {
      text += field;
      continue;
    }
    text += L'"';
    for (wchar_t c : field) text += c == L'"' ? std::wstring(L"\"\"") : std::wstring(1, c);
    text += L'"';
  }
  return text;
}
