#include "MatTable.h"

#include "ExcelApp.h"
#include "MessageBox.h"
#include "TkFile.h"
#include "TkLog.h"

namespace {

const wchar_t kCaption[] = L"提示";
const wchar_t kSheet[] = L"sheet1";
const wchar_t kTableName[] = L"MatTable";
constexpr int kFirstRow = 2;
enum Column { kColIndex = 1, kColName, kColMaterial };

bool AskYes(const std::wstring& question) {
  return platform::MessageBox(nullptr, question, kCaption, platform::kMbYesNo) == platform::kIdYes;
}

void Tell(const std::wstring& text) { CTkLog().ShowPrompt(text, kCaption, platform::kMbOk, nullptr, 0); }

}  // namespace

void WriteMatTable(const std::vector<MatTableRow>& rows) {
  if (rows.empty()) return;
  CTkFile file;
  const std::wstring dir = file.ChooseDir(L"");
  if (dir.empty()) return;
  const std::wstring target = dir + L"\\" + kTableName + L".xls";
  if (file.FileExists(target) && !AskYes(L"文件：" + target + L" 已经存在，是否覆盖？")) return;
  file.DelFile(target, 0);

  ExcelApp excel;
  if (!excel.StartExcel(1)) {
    Tell(L"启动Excel失败");
    return;
  }
  if (!excel.NewFromTemplate(file.GetAppDir() + L"\\template\\mattbl.xls")) {
    Tell(L"新建Excel失败");
    return;
  }
  for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
    excel.SetCellText(kSheet, row + kFirstRow, kColIndex, rows[row].index);
    excel.SetCellText(kSheet, row + kFirstRow, kColName, rows[row].name);
    excel.SetCellText(kSheet, row + kFirstRow, kColMaterial, rows[row].material);
  }
  excel.SaveWorkbookAs(dir, kTableName);
  excel.CloseAll();
  if (AskYes(L"是否打开：" + target + L" ？")) excel.OpenFileInShell(target);
}

void ReadMatTable(int rowCount,
                  const std::function<void(int row, const std::wstring& material)>& setMaterial) {
  if (rowCount <= 0) return;
  // The host's dialog loads the pick as a model before it answers: a
  // workbook it does not take ends the import here.
  const std::wstring path = CTkFile().ChooseMdlFile(L"MatTable.xls", L"", 0);
  if (path.empty()) return;
  ExcelApp excel;
  if (!excel.StartExcel(1)) {
    Tell(L"启动Excel失败");
    return;
  }
  if (!excel.OpenWorkbook(path)) {
    Tell(L"加载失败: " + path);
    return;
  }
  for (int row = 0; row < rowCount; ++row) {
    std::wstring material;
    excel.GetCellText(kSheet, row + kFirstRow, kColMaterial, material);
    setMaterial(row, material);
  }
  excel.CloseAll();
}
