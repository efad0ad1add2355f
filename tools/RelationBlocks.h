// Relation texts as the batch relation tool writes them: lines, and blocks of
// lines. A block runs up to and including its first empty line, or up to the
// last line, so blank lines separate blocks. Adding and deleting work on
// whole blocks and leave every line they write back in upper case.
#pragma once

#include <string>
#include <vector>

// One line off both ends, first of blanks, then of carriage returns, then of
// line feeds, then of tabs, each pass once: a tab in front of a blank keeps
// the blank.
std::wstring CleanRelationLine(std::wstring line);

// The text split at line feeds, each line trimmed of blanks and then cleaned.
// Empty lines stay; an empty text gives no lines. Empties `lines` first.
void TrimRelationLines(const std::wstring& text, std::vector<std::wstring>& lines);

// The existing lines (cleaned) in upper case, then each new block that does
// not already stand in them as a substring, each behind one more line feed,
// upper-cased. 0 with `out` empty when every new block is present, or there
// is none; else 1. A short block inside a longer relation counts as present.
int MergeRelationBlocks(const std::vector<std::wstring>& newLines,
                        const std::vector<std::wstring>& existingLines, std::vector<std::wstring>& out);

// The existing blocks (cleaned) in upper case, less each one equal to a block
// to delete once line feeds and blanks are dropped and both are upper-cased.
// Each kept block gets one more empty line behind it, so every delete widens
// the gaps. Always 1, also when nothing matched.
int RemoveRelationBlocks(const std::vector<std::wstring>& deleteLines,
                         const std::vector<std::wstring>& existingLines, std::vector<std::wstring>& out);
