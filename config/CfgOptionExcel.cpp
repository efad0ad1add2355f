// The Excel output's cells and the list's display options in Excel.cfg,
// which the program only reads.
#include "CfgOption.h"

#include "CodePage.h"

#include <algorithm>

namespace {

const wchar_t kExcelBase[] = L"ExcelBase";
const wchar_t kExcelTbl[] = L"ExcelTbl";
const wchar_t kShow[] = L"Show";

}  // namespace

// Only one letter names a column, so the columns end at Z: "AB12" is column
// -1, and its row, read behind the first character, 0.
void CCfgOption::ParseCell(const std::wstring& cell, int& row, int& col) const {
  col = ColLetterToIndex(cell.substr(0, cell.find_first_of(L"0123456789")));
  row = platform::WideToInt(cell.empty() ? cell : cell.substr(1));
}

int CCfgOption::GetDataCell(int& row, int& col) const {
  ParseCell(GetText(GetExcelCfgPath(), kExcelBase, L"Data"), row, col);
  return 1;
}

int CCfgOption::GetOtherCells(std::vector<ExcelParam>& cells) const {
  cells.clear();
  std::vector<std::wstring> items;
  GetTextList(GetExcelCfgPath(), kExcelBase, L"Other", L';', items);
  for (const std::wstring& item : items) {
    size_t comma = item.find(L',');
    if (comma == std::wstring::npos) continue;
    ExcelParam param;
    param.paramName = item.substr(0, comma);
    ParseCell(item.substr(comma + 1), param.row, param.col);
    cells.push_back(param);
  }
  return 1;
}

std::wstring CCfgOption::GetPageName() const {
  return GetText(GetExcelCfgPath(), kExcelBase, L"PageName", L"bom");
}

// Every key read replaces its starting value, missing or not: the 35 rows of
// a page never survive, a missing key reads as 0 and is clamped to 1.
int CCfgOption::GetTblLayout(int& beginRow, int& beginCol, int& rowNumOfPage) const {
  std::wstring path = GetExcelCfgPath();
  beginRow = platform::WideToInt(GetText(path, kExcelTbl, L"BegainRow"));
  beginCol = ColLetterToIndex(GetText(path, kExcelTbl, L"BegainCol"));
  rowNumOfPage = platform::WideToInt(GetText(path, kExcelTbl, L"RowNumOfPage"));
  beginRow = std::max(beginRow, 1);
  beginCol = std::max(beginCol, 1);
  rowNumOfPage = std::clamp(rowNumOfPage, 1, 100);
  return 1;
}

int CCfgOption::GetShowSamAsmCmps() const { return GetInt(GetExcelCfgPath(), kShow, L"ShowSamAsmCmps"); }
std::wstring CCfgOption::GetLevelSign() const { return GetText(GetExcelCfgPath(), kShow, L"LevelSign"); }
int CCfgOption::GetSaveParamBeforExport() const {
  return GetInt(GetExcelCfgPath(), kShow, L"SaveParamBeforExport");
}
int CCfgOption::GetEnableSaveParamBtn() const {
  return GetInt(GetExcelCfgPath(), kShow, L"EnableSaveParamBtn");
}
int CCfgOption::GetMassDecimalPlacesNum() const {
  return GetInt(GetExcelCfgPath(), kShow, L"MassDecimalPlacesNum");
}
void CCfgOption::GetSortCols(std::vector<unsigned>& cols) const {
  GetNumberList(GetExcelCfgPath(), kShow, L"SortCol", cols);
}

// The sort box has one entry more than "SortCol", the model tree order, so
// the number of entries itself is a valid index.
int CCfgOption::GetDefSortComboIndex() const {
  int index = GetInt(GetExcelCfgPath(), kShow, L"DefSortComboIndex");
  std::vector<unsigned> sortCols;
  GetSortCols(sortCols);
  return index < 0 || index > static_cast<int>(sortCols.size()) ? 0 : index;
}

void CCfgOption::GetFilterCols(std::vector<unsigned>& cols) const {
  GetNumberList(GetExcelCfgPath(), kShow, L"FilterCol", cols);
}
