#include "BomDrawing.h"

#include <algorithm>

#include "ProGraphic.h"
#include "ProMdl.h"
#include "ProWindows.h"
#include "TkDrwTable.h"
#include "TkLog.h"

namespace {

DrwTblCells CellsOf(const std::vector<std::wstring>& texts) {
  DrwTblCells row;
  row.count = std::min(static_cast<int>(texts.size()), kDrwTblMaxCells);
  std::copy_n(texts.begin(), row.count, row.cells.begin());
  return row;
}

std::vector<std::wstring> TextsOf(const DrwTblCells& row) {
  return {row.cells.begin(), row.cells.begin() + row.count};
}

}  // namespace

std::vector<unsigned> BomDrawingColumnWidths(const std::vector<int>& pixelWidths) {
  std::vector<unsigned> widths;
  for (int pixels : pixelWidths) widths.push_back(static_cast<unsigned>(std::max(pixels / 10, 1)));
  return widths;
}

std::vector<DrwTblCells> BomDrawingTable(const std::vector<ColInfo>& cols,
                                         const std::vector<std::vector<std::wstring>>& rows) {
  std::vector<std::wstring> names;
  for (const ColInfo& col : cols) {
    if (col.show) names.push_back(col.name);
  }
  std::vector<DrwTblCells> table{CellsOf(names)};
  for (const std::vector<std::wstring>& cells : rows) table.push_back(CellsOf(cells));
  return table;
}

int WriteBomDrawing(const std::vector<unsigned>& widths, const std::vector<DrwTblCells>& table) {
  const CTkLog log;
  ProMdl drawing = nullptr;
  if (log.LogStatus(L"#QK~DlgBomShow~ExportToDrawing~ProMdlCurrentGet", ProMdlCurrentGet(&drawing)) != 0) {
    return 0;
  }
  log.ShowFileMsg(L"please select a pos for placing table", L"BOMMsg.txt");
  ProMouseButton pressed = PRO_NO_BUTTON;
  ProPoint3d point{};
  ProError picked = ProMousePickGet(PRO_LEFT_BUTTON, &pressed, point);
  if (log.LogStatus(L"#QK~DlgBomShow~ExportToDrawing~ProMousePickGet", picked) != 0) return 0;

  std::vector<std::wstring> headers = TextsOf(table.front());
  if (headers.size() != widths.size()) {
    log.ShowPrompt(L"列数异常, 请检查配置项", L"提示", 0, nullptr, 0);
    return 0;
  }
  const CTkDrwTable drw;
  ProDwgtable created{};
  int status = drw.CreateDrwTable(drawing, point, widths, headers, created, 1, 0, 0);
  if (status != 0) return status;
  for (std::size_t row = 1; row < table.size(); ++row) {
    log.LogStatus(L"#QK~DlgBomShow~ExportToDrawing~AddTableRow",
                  drw.AddTableRow(created, 1.0, TextsOf(table[row]), 0, 0.0, -1));
  }
  drw.FinishDrwTable(created);
  int window = 0;
  if (ProWindowCurrentGet(&window) == PRO_TK_NO_ERROR) ProWindowActivate(window);
  return 1;
}
