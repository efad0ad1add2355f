#include "TkDrwTable.h"

#include <algorithm>
#include <cwchar>

#include "ProArray.h"
#include "ProAsmcomp.h"
#include "ProDrawing.h"
#include "ProDtlnote.h"
#include "ProWindows.h"
#include "TkFile.h"
#include "TkText.h"

namespace {

// Host arrays handed out by the note calls, freed on every way out.
template <typename T>
class HostArray {
 public:
  HostArray() = default;
  HostArray(const HostArray&) = delete;
  HostArray& operator=(const HostArray&) = delete;
  ~HostArray() {
    if (items_) ProArrayFree(reinterpret_cast<ProArray*>(&items_));
  }
  T** Out() { return &items_; }
  int Size() const {
    int size = 0;
    if (items_) ProArraySizeGet(items_, &size);
    return size;
  }
  T& operator[](int index) { return items_[index]; }
  T* Data() { return items_; }

 private:
  T* items_ = nullptr;
};

// A cell's note with its data and lines, as the note calls walk it; the
// data is freed on every way out.
class CellNote {
 public:
  CellNote() = default;
  CellNote(const CellNote&) = delete;
  CellNote& operator=(const CellNote&) = delete;
  ~CellNote() {
    if (data_) ProDtlnotedataFree(data_);
  }
  ProError Open(ProDwgtable& table, int row, int column) {
    ProError status = ProDwgtableCellNoteGet(&table, column, row, &note_);
    if (status == PRO_TK_NO_ERROR) status = ProDtlnoteDataGet(&note_, nullptr, PRODISPMODE_NUMERIC, &data_);
    if (status == PRO_TK_NO_ERROR) status = ProDtlnotedataLinesCollect(data_, lines_.Out());
    return status;
  }
  HostArray<ProDtlnoteline>& Lines() { return lines_; }
  // Makes the lines, as changed, the note's own.
  void Modify() {
    ProDtlnoteldataLinesSet(data_, lines_.Data());
    ProDtlnoteModify(&note_, nullptr, data_);
  }

 private:
  ProDtlnote note_{};
  ProDtlnotedata data_ = nullptr;
  HostArray<ProDtlnoteline> lines_;
};

// The first text of the cell's note that answers `query` gives the value.
int QueryCellText(ProDwgtable& table, int row, int column, ProError (*query)(ProDtlnotetext, double*),
                  double& value) {
  CellNote note;
  ProError status = note.Open(table, row, column);
  if (status != PRO_TK_NO_ERROR) return status;
  status = PRO_TK_E_NOT_FOUND;
  HostArray<ProDtlnoteline>& lines = note.Lines();
  for (int l = 0; l < lines.Size(); ++l) {
    HostArray<ProDtlnotetext> texts;
    if (ProDtlnotelineTextsCollect(lines[l], texts.Out()) != PRO_TK_NO_ERROR) continue;
    for (int t = 0; t < texts.Size(); ++t) {
      status = query(texts[t], &value);
      if (status == PRO_TK_NO_ERROR) return status;
    }
  }
  return status;
}

}  // namespace

int CTkDrwTable::CreateDrwTable(ProMdl drawing, const ProPoint3d origin, const std::vector<unsigned>& widths,
                                const std::vector<std::wstring>& headers, ProDwgtable& table, int rowHeight,
                                int sizeType, int justification) const {
  ProDwgtabledata data = nullptr;
  ProError status = ProDwgtabledataAlloc(&data);
  if (status != PRO_TK_NO_ERROR) return status;
  int columns = static_cast<int>(widths.size());
  std::vector<double> columnWidths(widths.begin(), widths.end());
  std::vector<ProHorzJust> justifications(widths.size(), static_cast<ProHorzJust>(justification));
  double height = rowHeight;
  ProPoint3d at = {origin[0], origin[1], origin[2]};
  status = ProDwgtabledataOriginSet(data, at);
  if (status == PRO_TK_NO_ERROR)
    status = ProDwgtabledataSizetypeSet(data, static_cast<ProDwgtableSizetype>(sizeType));
  if (status == PRO_TK_NO_ERROR) {
    status = ProDwgtabledataColumnsSet(data, columns, columnWidths.data(), justifications.data());
  }
  if (status == PRO_TK_NO_ERROR) status = ProDwgtabledataRowsSet(data, 1, &height);
  if (status == PRO_TK_NO_ERROR)
    status = ProDrawingTableCreate(static_cast<ProDrawing>(drawing), data, 1, &table);
  ProDwgtabledataFree(data);
  if (status != PRO_TK_NO_ERROR) return status;
  for (int c = 0; c < columns && c < static_cast<int>(headers.size()); ++c) {
    std::vector<std::wstring> lines;
    SplitLines(headers[c], lines, L'\n');
    TextEnter(table, c + 1, 1, lines);
  }
  return 0;
}

int CTkDrwTable::AddTableRow(ProDwgtable& table, double rowHeight, const std::vector<std::wstring>& cells,
                             int heightUnit, double fitFactor, int position) const {
  double height = heightUnit == 1 ? rowHeight / 6.14 : rowHeight;
  int behind = position - 1;
  if (behind < 0) {
    ProError status = ProDwgtableRowsCount(&table, &behind);
    if (status != PRO_TK_NO_ERROR) return status;
  }
  ProError status = ProDwgtableRowAdd(&table, behind, 1, height);
  if (status != PRO_TK_NO_ERROR) return status;
  int row = behind + 1;
  for (int c = 0; c < static_cast<int>(cells.size()); ++c) {
    std::wstring text = tktext::TrimBlanks(cells[c]);
    if (text.empty()) continue;
    std::vector<std::wstring> lines;
    SplitLines(text, lines, L'\n');
    std::size_t longest = 0;
    for (std::wstring& line : lines) {
      if (line.empty()) line = L" ";
      longest = std::max(longest, line.size());
    }
    TextEnter(table, c + 1, row, lines);
    if (fitFactor > 0.0) FitCellText(table, row, c, longest, fitFactor);
  }
  return 0;
}

// Any step that fails leaves the text as it is.
void CTkDrwTable::FitCellText(ProDwgtable& table, int row, int column, std::size_t longestLine,
                              double fitFactor) const {
  double columnWidth = 0, height = 0, width = 0;
  if (GetColumnWidthOnSheet(table, column, columnWidth) != 0) return;
  if (GetTableCellTextHeight(table, row, column + 1, height) != 0) return;
  if (GetTableCellTextWidth(table, row, column + 1, width) != 0) return;
  double available = columnWidth / (static_cast<double>(longestLine) / fitFactor);
  if (available > width * height) return;
  SetTableCellTextWidth(table, row, column + 1, available / height);
}

int CTkDrwTable::TextEnter(ProDwgtable& table, int column, int row,
                           const std::vector<std::wstring>& lines) const {
  ProArray array = nullptr;
  ProError status = ProArrayAlloc(0, sizeof(ProWstring), 1, &array);
  if (status != PRO_TK_NO_ERROR) return status;
  // The host copies the texts; the buffers need only outlive the call.
  std::vector<std::vector<wchar_t>> buffers;
  buffers.reserve(lines.size());
  for (const std::wstring& line : lines) {
    std::vector<wchar_t>& buffer = buffers.emplace_back(line.size() * 2 + 1, L'\0');
    std::wcsncpy(buffer.data(), line.c_str(), buffer.size() - 1);
    ProWstring text = buffer.data();
    ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, 1, &text);
  }
  status = ProDwgtableTextEnter(&table, column, row, static_cast<ProWstring*>(array));
  ProArrayFree(&array);
  return status;
}

int CTkDrwTable::FinishDrwTable(ProDwgtable& table) const {
  int rows = 0;
  ProError status = ProDwgtableRowsCount(&table, &rows);
  if (status != PRO_TK_NO_ERROR) return status;
  double total = 0;
  for (int row = 0; row < rows; ++row) {
    double size = 0;
    if (ProDwgtableRowSizeGet(&table, 0, row, &size) == PRO_TK_NO_ERROR) total += size;
  }
  ProDwgtableInfo info{};
  status = ProDwgtableInfoGet(&table, 0, &info);
  if (status != PRO_TK_NO_ERROR) return status;
  ProVector lifted = {info.seg_origin[0], info.seg_origin[1] + total, info.seg_origin[2]};
  ProDwgtableSegMove(&table, -1, lifted, PRO_B_TRUE);
  int window = 0;
  if (ProWindowCurrentGet(&window) == PRO_TK_NO_ERROR) {
    ProWindowActivate(window);
    ProWindowRepaint(window);
  }
  return 0;
}

int CTkDrwTable::GetTableCellTextHeight(ProDwgtable& table, int row, int column, double& height) const {
  return QueryCellText(table, row, column, ProDtlnotetextHeightGet, height);
}

int CTkDrwTable::GetTableCellTextWidth(ProDwgtable& table, int row, int column, double& width) const {
  return QueryCellText(table, row, column, ProDtlnotetextWidthGet, width);
}

int CTkDrwTable::SetTableCellTextWidth(ProDwgtable& table, int row, int column, double width) const {
  CellNote note;
  ProError status = note.Open(table, row, column);
  if (status != PRO_TK_NO_ERROR) return status;
  HostArray<ProDtlnoteline>& lines = note.Lines();
  for (int l = 0; l < lines.Size(); ++l) {
    HostArray<ProDtlnotetext> texts;
    if (ProDtlnotelineTextsCollect(lines[l], texts.Out()) != PRO_TK_NO_ERROR) continue;
    for (int t = 0; t < texts.Size(); ++t) ProDtlnotetextWidthSet(texts[t], width);
    ProDtlnotelineTextsSet(lines[l], texts.Data());
  }
  note.Modify();
  return 0;
}

int CTkDrwTable::GetColumnSize(ProDwgtable& table, int column, double& size) const {
  return ProDwgtableColumnSizeGet(&table, -1, column, &size);
}

int CTkDrwTable::GetColumnWidthOnSheet(ProDwgtable& table, int column, double& width) const {
  width = 0;
  double size = 0;
  int sheet = 0;
  ProDwgtableInfo info{};
  ProPoint3d first{}, second{};
  int status = GetColumnSize(table, column, size);
  if (status == 0) status = GetTableSheet(table, sheet);
  if (status == 0) status = GetTableOutline(table.owner, sheet, table, first, second);
  if (status == 0) status = GetTableInfo(table, info);
  if (status != 0) return status;
  double tableExtent = info.outline[1][0] - info.outline[0][0];
  if (tableExtent == 0) return PRO_TK_GENERAL_ERROR;
  width = size * (second[0] - first[0]) / tableExtent;
  return 0;
}

int CTkDrwTable::GetTableInfo(ProDwgtable& table, ProDwgtableInfo& info) const {
  return ProDwgtableInfoGet(&table, -1, &info);
}

int CTkDrwTable::GetTableSheet(ProDwgtable& table, int& sheet) const {
  return ProDwgtableSegSheetGet(&table, -1, &sheet);
}

int CTkDrwTable::GetTableOutline(ProMdl drawing, int sheet, ProDwgtable& table, ProPoint3d first,
                                 ProPoint3d second) const {
  ProDwgtableInfo info{};
  int status = GetTableInfo(table, info);
  if (status == 0) status = SheetPointToDrawing(drawing, sheet, info.outline[0], first);
  if (status == 0) status = SheetPointToDrawing(drawing, sheet, info.outline[1], second);
  return status;
}

int CTkDrwTable::SheetPointToDrawing(ProMdl drawing, int sheet, const ProPoint3d point,
                                     ProPoint3d result) const {
  ProName size{};
  ProMatrix transform{};
  ProError status = ProDrawingSheetTrfGet(static_cast<ProDrawing>(drawing), sheet, size, transform);
  if (status != PRO_TK_NO_ERROR) return status;
  ProVector in = {point[0], point[1], point[2]};
  return ProPntTrfEval(in, transform, result);
}

int CTkDrwTable::GetDrawingSolids(ProMdl drawing, std::vector<ProMdl>& solids) const {
  ProSolid* collected = nullptr;
  ProError status = ProDrawingSolidsCollect(static_cast<ProDrawing>(drawing), &collected);
  if (status != PRO_TK_NO_ERROR) return status;
  int count = 0;
  status = ProArraySizeGet(collected, &count);
  for (int i = 0; i < count; ++i) solids.push_back(collected[i]);
  ProArrayFree(reinterpret_cast<ProArray*>(&collected));
  return status;
}

void CTkDrwTable::SplitLines(const std::wstring& text, std::vector<std::wstring>& lines,
                             wchar_t separator) const {
  CTkFile().SplitText(text, lines, separator, 1);
}
