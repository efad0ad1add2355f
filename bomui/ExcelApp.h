// The one way of the program to a spreadsheet: a workbook made from a
// template, cells written and read as text by sheet name, row and column,
// saved under a name and closed. Made on the stack for one job.
//
// The spreadsheet behind it is the native engine of workbook/, not a running
// Excel: StartExcel always succeeds and "visible" has nothing to show. The
// extension of SaveWorkbookAs follows the template: ".xls", or ".xlsx" for a
// template of that format.
//
// Like Excel's automation, a failure in SetCellText, GetCellText or
// SaveWorkbookAs throws workbook::Error (a missing sheet, a cell out of range,
// no workbook, a file that cannot be written), so the running output breaks
// off and nothing is saved. StartExcel, OpenWorkbook and NewFromTemplate
// report by their result; why a workbook did not open goes to the debug
// output as "ExcelApp: " + the file + ": " + the reason.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "Workbook.h"

// The engine's message with the file in front, unless it names it already.
std::string MessageNamingFile(const std::filesystem::path& file, const std::string& message);

class ExcelApp {
 public:
  ExcelApp();
  // Calls CloseAll.
  ~ExcelApp();
  ExcelApp(const ExcelApp&) = delete;
  ExcelApp& operator=(const ExcelApp&) = delete;

  // 1, or 0 when the application cannot be started.
  int StartExcel(int visible);
  // Opens an existing file: 1, or 0 when it cannot be read.
  int OpenWorkbook(const std::wstring& path);
  // A new workbook with the template's contents and no file name; the
  // template is not changed. 0 when the application is not started, the
  // template is not there (FileAccessible) or cannot be read.
  int NewFromTemplate(const std::wstring& templatePath);
  int SetCellText(const std::wstring& sheet, int row, int column, const std::wstring& text);
  // New cells below the template's rows take the format of `row`'s cell in
  // their column (workbook::Workbook::SetModelRow).
  int SetModelRow(const std::wstring& sheet, int row);
  // Empties `text`, then gives the cell's value as text.
  int GetCellText(const std::wstring& sheet, int row, int column, std::wstring& text);
  // Saves as directory + "\" (unless it ends in one) + name + the extension
  // of the workbook's format.
  int SaveWorkbookAs(const std::wstring& directory, const std::wstring& name);
  // The extension that a workbook made from the template is saved with:
  // ".xlsx" for a template of that format whatever its name, else ".xls".
  static std::wstring ExtensionFor(const std::wstring& templatePath);
  // Drops the workbook without saving and quits; further calls do nothing.
  void CloseAll();

  // 1 when the file exists, else 0.
  int FileAccessible(const std::wstring& path);
  // Hands the file to the shell's "open" in a normal window: 1, or 0 when
  // the file does not exist.
  int OpenFileInShell(const std::wstring& path);
  // Writes `text` as given (line ends included) at the end of the file,
  // through the narrow code page. With `create`, or when the file is
  // missing, the file is made anew. 0 when it cannot be written, and then the
  // file is as it was.
  int AppendLine(const std::wstring& path, const std::wstring& text, int create);

 private:
  workbook::Workbook& ActiveWorkbook();

  bool started_ = false;
  std::unique_ptr<workbook::Workbook> workbook_;
};
