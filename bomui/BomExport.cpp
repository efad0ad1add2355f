#include "BomExport.h"

#include "CfgOption.h"
#include "ExcelApp.h"
#include "Files.h"
#include "MessageBox.h"
#include "ProMdl.h"
#include "TkBOM.h"
#include "TkFile.h"
#include "TkLog.h"
#include "TkParam.h"

namespace {

const wchar_t kCaption[] = L"提示";
constexpr int kParamDecimals = 2;

bool AskYes(const std::wstring& question) {
  return platform::MessageBox(nullptr, question, kCaption, platform::kMbYesNo) == platform::kIdYes;
}

void Tell(const std::wstring& text) { CTkLog().ShowPrompt(text, kCaption, platform::kMbOk, nullptr, 0); }

void OfferToOpen(ExcelApp& excel, const std::wstring& path) {
  if (AskYes(L"是否打开：" + path + L" ？")) excel.OpenFileInShell(path);
}

void WriteHeadCells(ExcelApp& excel, const std::wstring& sheet, ProMdl current) {
  CCfgOption option;
  int dateRow = 0;
  int dateCol = 0;
  option.GetDataCell(dateRow, dateCol);
  excel.SetCellText(sheet, dateRow, dateCol, TkBOM().GetTodayText());
  std::vector<ExcelParam> cells;
  option.GetOtherCells(cells);
  CTkParam param;
  for (const ExcelParam& cell : cells) {
    excel.SetCellText(sheet, cell.row, cell.col,
                      param.GetMdlParamValue(current, cell.paramName, kParamDecimals));
  }
}

}  // namespace

std::wstring BomExcelDir(const std::wstring& outDir) { return outDir + L"Excel"; }

std::wstring BomTextPath(const BomOutputTarget& target) {
  return target.outDir + L"\\" + target.fileName + L".txt";
}

std::wstring BomTextHeaderLine(const std::vector<ColInfo>& cols) {
  std::wstring line;
  for (const ColInfo& col : cols) {
    if (col.show) line += col.name + L"\t";
  }
  return line;
}

std::wstring BomTextLine(const std::vector<std::wstring>& cells) {
  std::wstring line;
  for (const std::wstring& text : cells) {
    if (text.empty()) line += L"\t";
    line += text + L"\t";
    if (text.size() > 1 && text.size() < 8) line += L"\t";
  }
  return line;
}

int WriteBomExcel(const BomOutputTarget& target, const BomCheckedRows& rows) {
  ProMdl current = nullptr;
  if (ProMdlCurrentGet(&current) != PRO_TK_NO_ERROR) return 0;
  CCfgOption option;
  const std::wstring sheet = option.GetPageName();
  // "RowNumOfPage" is read with the layout but pages nothing: every row goes
  // to the one sheet, so the template needs no spare sheets.
  int firstRow = 0;
  int firstCol = 0;
  int rowsOfPage = 0;
  option.GetTblLayout(firstRow, firstCol, rowsOfPage);

  // Lower case here; the file system's lookup finds the delivered BOM.xls.
  const std::wstring templatePath = CTkFile().GetAppDir() + L"\\template\\bom.xls";
  const std::wstring dir = BomExcelDir(target.outDir);
  platform::CreateDirectory(dir);
  const std::wstring path = dir + L"\\" + target.fileName + ExcelApp::ExtensionFor(templatePath);
  // The agreed overwrite is the save's replace: until the new workbook is
  // whole on disk the old one stays, so a failure loses nothing.
  if (CTkFile().FileExists(path) && !AskYes(L"文件：" + path + L" 已经存在，是否覆盖？")) return 0;

  ExcelApp excel;
  if (!excel.StartExcel(1)) {
    Tell(L"启动Excel失败");
    return 0;
  }
  if (!excel.NewFromTemplate(templatePath)) {
    Tell(L"新建Excel失败");
    return 0;
  }
  try {
    WriteHeadCells(excel, sheet, current);
    // A bill longer than the template's ruled rows keeps their borders and font.
    if (!rows.empty()) excel.SetModelRow(sheet, firstRow);
    int targetRow = firstRow;
    for (const std::vector<std::wstring>& cells : rows) {
      for (int col = 0; col < static_cast<int>(cells.size()); ++col) {
        excel.SetCellText(sheet, targetRow, firstCol + col, cells[col]);
      }
      ++targetRow;
    }
    excel.SaveWorkbookAs(dir, target.fileName);
  } catch (const workbook::Error& error) {
    // A cell's failure does not say which output it broke off.
    throw workbook::Error(MessageNamingFile(platform::ResolvePath(path), error.what()));
  }
  excel.CloseAll();
  OfferToOpen(excel, path);
  return 1;
}

int WriteBomText(const BomOutputTarget& target, const std::vector<ColInfo>& cols,
                 const BomCheckedRows& rows) {
  const std::wstring path = BomTextPath(target);
  // All lines in one write that replaces the old file, so that a failure
  // leaves the old file whole rather than removed or cut short.
  std::wstring text = BomTextHeaderLine(cols) + L"\r\n";
  for (const std::vector<std::wstring>& cells : rows) text += BomTextLine(cells) + L"\r\n";
  ExcelApp excel;
  excel.AppendLine(path, text, 1);
  OfferToOpen(excel, path);
  return 1;
}
