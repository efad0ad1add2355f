#include "RelationBlocks.h"

#include <algorithm>

#include "TkFile.h"
#include "TkText.h"

namespace {

std::wstring TrimChar(const std::wstring& text, wchar_t c) {
  std::size_t first = text.find_first_not_of(c);
  if (first == std::wstring::npos) return L"";
  return text.substr(first, text.find_last_not_of(c) - first + 1);
}

// Each block ends with the line feed of its last line; an empty line closes
// the block it stands in.
std::vector<std::wstring> DivideBlocks(const std::vector<std::wstring>& lines, bool clean) {
  std::vector<std::wstring> blocks;
  std::wstring block;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::wstring line = clean ? CleanRelationLine(lines[i]) : lines[i];
    block += line + L"\n";
    if (line.empty() || i + 1 == lines.size()) {
      blocks.push_back(tktext::Upper(block));
      block.clear();
    }
  }
  return blocks;
}

std::wstring WithoutAny(std::wstring text, const std::wstring& chars) {
  std::erase_if(text, [&](wchar_t c) { return chars.find(c) != std::wstring::npos; });
  return text;
}

// What a delete compares: no line feed, no blank, upper case.
std::wstring BlockKey(const std::wstring& block) { return tktext::Upper(WithoutAny(block, L"\n ")); }

void SplitLines(const std::wstring& text, std::vector<std::wstring>& lines) {
  CTkFile().SplitText(text, lines, L'\n', 1);
}

}  // namespace

std::wstring CleanRelationLine(std::wstring line) {
  for (wchar_t c : {L' ', L'\r', L'\n', L'\t'}) line = TrimChar(line, c);
  return line;
}

void TrimRelationLines(const std::wstring& text, std::vector<std::wstring>& lines) {
  SplitLines(text, lines);
  for (std::wstring& line : lines) line = CleanRelationLine(line);
}

int MergeRelationBlocks(const std::vector<std::wstring>& newLines,
                        const std::vector<std::wstring>& existingLines, std::vector<std::wstring>& out) {
  out.clear();
  std::wstring existing;
  for (const std::wstring& line : existingLines) existing += CleanRelationLine(line) + L"\n";
  existing = tktext::Upper(existing);

  std::vector<std::wstring> blocks = DivideBlocks(newLines, false);
  for (std::size_t i = blocks.size(); i-- > 0;) {
    if (existing.find(TrimChar(blocks[i], L'\n')) != std::wstring::npos) blocks.erase(blocks.begin() + i);
  }
  if (blocks.empty()) return 0;

  std::wstring result = existing;
  for (const std::wstring& block : blocks) result += L"\n" + block;
  SplitLines(result, out);
  return 1;
}

int RemoveRelationBlocks(const std::vector<std::wstring>& deleteLines,
                         const std::vector<std::wstring>& existingLines, std::vector<std::wstring>& out) {
  std::vector<std::wstring> blocks = DivideBlocks(existingLines, true);
  std::vector<std::wstring> deleteKeys;
  for (const std::wstring& block : DivideBlocks(deleteLines, false)) deleteKeys.push_back(BlockKey(block));
  for (std::size_t i = blocks.size(); i-- > 0;) {
    if (std::ranges::find(deleteKeys, BlockKey(blocks[i])) != deleteKeys.end())
      blocks.erase(blocks.begin() + i);
  }
  std::wstring result;
  for (const std::wstring& block : blocks) result += block + L"\n";
  SplitLines(result, out);
  return 1;
}
