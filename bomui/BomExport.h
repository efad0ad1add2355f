// The outputs of the BOM list to an Excel workbook made from the delivered
// template and to a text file aligned on tab stops. Both take the list as it
// stands on the screen: the cells of the checked rows in list order, with
// what the user typed and without what a filter took out.
#pragma once

#include <string>
#include <vector>

#include "ColInfo.h"

// Where an output goes: the texts of the fields under "输出目录" and
// "文件名称", as the user left them.
struct BomOutputTarget {
  std::wstring outDir;
  std::wstring fileName;  // without extension
};

// The cells of each checked list row, in list column order.
using BomCheckedRows = std::vector<std::vector<std::wstring>>;

// The workbook's directory: "Excel" appended with no separator, so a field
// without a trailing backslash names a sibling ending in Excel.
std::wstring BomExcelDir(const std::wstring& outDir);
// outDir + "\" + name + ".txt", a trailing backslash of the field doubled.
std::wstring BomTextPath(const BomOutputTarget& target);

// The names of the shown columns, each followed by a tab.
std::wstring BomTextHeaderLine(const std::vector<ColInfo>& cols);
// One row for the text file, without line end: an empty cell gives two tabs,
// one character that character and a tab, 2 to 7 characters the text and
// two tabs, a longer text the text and a tab. A rough alignment on tab stops
// of 8 by character count, kept also where wide characters spoil it.
std::wstring BomTextLine(const std::vector<std::wstring>& cells);

// The rows under each other from the layout's first row and column on the
// one sheet of Excel.cfg, the date and the current model's parameters in
// their cells. Asks before overwriting and whether to open the result.
// 1 when written; 0 with no current model, on a declined overwrite or when
// the spreadsheet cannot start or the template is missing (both told under
// "提示"). A failure of the spreadsheet itself, its save included, throws
// workbook::Error, its text naming the workbook's file; a workbook saved
// before is then as it was.
int WriteBomExcel(const BomOutputTarget& target, const BomCheckedRows& rows);
// The header line, then a line per row, each ending in "\r\n"; an existing
// file is replaced without a question, or kept whole when the write fails.
// Asks whether to open the result; 1.
int WriteBomText(const BomOutputTarget& target, const std::vector<ColInfo>& cols, const BomCheckedRows& rows);
