#include "ExcelApp.h"

#include <exception>
#include <optional>

#include "CodePage.h"
#include "DebugOutput.h"
#include "FileWrite.h"
#include "Files.h"
#include "Shell.h"

namespace {

std::wstring ExtensionOf(workbook::Format format) {
  return format == workbook::Format::Xlsx ? L".xlsx" : L".xls";
}

// Why a workbook did not open, which the result alone does not say.
void TellWhyNotOpened(const std::filesystem::path& file, const std::string& reason) {
  platform::OutputDebugString(L"ExcelApp: " + platform::ToWide(MessageNamingFile(file, reason)));
}

}  // namespace

std::string MessageNamingFile(const std::filesystem::path& file, const std::string& message) {
  if (message.find(file.string()) != std::string::npos) return message;
  return file.string() + ": " + message;
}

ExcelApp::ExcelApp() = default;

ExcelApp::~ExcelApp() { CloseAll(); }

int ExcelApp::StartExcel(int /*visible*/) {
  started_ = true;
  return 1;
}

int ExcelApp::OpenWorkbook(const std::wstring& path) {
  std::filesystem::path file = platform::ResolvePath(path);
  try {
    workbook_ = workbook::OpenWorkbook(file);
  } catch (const std::exception& error) {
    // Besides its own errors, the engine lets a stream's failure through
    // (reading a directory, say).
    TellWhyNotOpened(file, error.what());
    return 0;
  }
  return 1;
}

int ExcelApp::NewFromTemplate(const std::wstring& templatePath) {
  if (!started_) return 0;
  if (!FileAccessible(templatePath)) {
    TellWhyNotOpened(platform::ResolvePath(templatePath), "no such file");
    return 0;
  }
  return OpenWorkbook(templatePath);
}

workbook::Workbook& ExcelApp::ActiveWorkbook() {
  if (!workbook_) throw workbook::Error("no workbook is open");
  return *workbook_;
}

int ExcelApp::SetCellText(const std::wstring& sheet, int row, int column, const std::wstring& text) {
  ActiveWorkbook().SetCellText(sheet, row, column, text);
  return 1;
}

int ExcelApp::SetModelRow(const std::wstring& sheet, int row) {
  ActiveWorkbook().SetModelRow(sheet, row);
  return 1;
}

int ExcelApp::GetCellText(const std::wstring& sheet, int row, int column, std::wstring& text) {
  text.clear();  // stays empty when the read throws
  text = ActiveWorkbook().GetCellText(sheet, row, column);
  return 1;
}

std::wstring ExcelApp::ExtensionFor(const std::wstring& templatePath) {
  return ExtensionOf(workbook::FormatOfFile(platform::ResolvePath(templatePath)));
}

int ExcelApp::SaveWorkbookAs(const std::wstring& directory, const std::wstring& name) {
  workbook::Workbook& active = ActiveWorkbook();
  std::wstring path = directory;
  if (path.empty() || path.back() != L'\\') path += L'\\';
  path += name;
  path += ExtensionOf(active.format());
  active.SaveAs(platform::ResolvePath(path));
  return 1;
}

void ExcelApp::CloseAll() {
  workbook_.reset();
  started_ = false;
}

int ExcelApp::FileAccessible(const std::wstring& path) { return platform::FileExists(path) ? 1 : 0; }

int ExcelApp::OpenFileInShell(const std::wstring& path) {
  if (!FileAccessible(path)) return 0;
  platform::ShellOpen(path, platform::kSwShowNormal);
  return 1;
}

// Even an append rewrites the whole file, so that a failure leaves the file
// as it was instead of holding part of the text.
int ExcelApp::AppendLine(const std::wstring& path, const std::wstring& text, int create) {
  std::string bytes;
  if (!create && FileAccessible(path)) {
    std::optional<std::string> old = platform::ReadFileBytes(path);
    if (!old) return 0;
    bytes = std::move(*old);
  }
  bytes += platform::ToNarrow(text);
  return platform::WriteFileAtomically(path, bytes) ? 0 : 1;
}
