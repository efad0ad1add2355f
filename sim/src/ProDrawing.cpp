// Drawings: the models they show, and their sheets.
#include "ProDrawing.h"

#include "DrawingItems.h"
#include "HostMemory.h"
#include "Text.h"
#include "ToolkitCall.h"

#include <algorithm>

extern "C" ProError ProDrawingSolidsCollect(ProDrawing drawing, ProSolid** solids) {
  sim::ToolkitCall call("ProDrawingSolidsCollect", {sim::ModelRef{drawing}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = sim::LiveDrawing(call.state(), drawing);
  if (!live || !solids) return PRO_TK_BAD_INPUTS;
  if (live->solids.empty()) return PRO_TK_E_NOT_FOUND;
  int count = static_cast<int>(live->solids.size());
  void* array = sim::NewArray(count, sizeof(ProSolid), 1);
  if (!array) return PRO_TK_OUT_OF_MEMORY;
  auto* handles = static_cast<ProSolid*>(array);
  for (int i = 0; i < count; ++i) handles[i] = static_cast<ProSolid>(sim::Handle(live->solids[i]));
  *solids = handles;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDrawingSheetTrfGet(ProDrawing drawing, int sheet, ProName sheet_size,
                                          ProMatrix transform) {
  sim::ToolkitCall call("ProDrawingSheetTrfGet", {sim::ModelRef{drawing}, sheet});
  if (call.Failed()) return call.Status();
  const sim::Model* live = sim::LiveDrawing(call.state(), drawing);
  if (!live || sheet < 1 || sheet > live->def.SheetCount() || !sheet_size || !transform)
    return PRO_TK_BAD_INPUTS;
  const auto& sheets = live->def.sheets;
  sim::SheetDef format = sheets.empty() ? sim::SheetDef{} : sheets[sheet - 1];
  sim::CopyText(sheet_size, PRO_NAME_SIZE, format.size);
  for (int row = 0; row < 4; ++row)
    std::copy(format.transform[row].begin(), format.transform[row].end(), transform[row]);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDrawingCurrentSheetGet(ProDrawing drawing, int* sheet) {
  sim::ToolkitCall call("ProDrawingCurrentSheetGet", {sim::ModelRef{drawing}});
  if (call.Failed()) return call.Status();
  const sim::Model* live = sim::LiveDrawing(call.state(), drawing);
  if (!live || !sheet) return PRO_TK_BAD_INPUTS;
  *sheet = live->def.currentSheet;
  return PRO_TK_NO_ERROR;
}
