#include "DrawingItems.h"

#include <algorithm>

namespace sim {

Model* LiveDrawing(const HostState& state, const void* handle) {
  Model* model = state.LiveModel(handle);
  return model && model->def.type == PRO_MDL_DRAWING ? model : nullptr;
}

ItemRef<TableDef> FindTable(const HostState& state, const ProDwgtable* handle) {
  Model* drawing = handle && handle->type == PRO_DRAW_TABLE ? LiveDrawing(state, handle->owner) : nullptr;
  if (!drawing) return {PRO_TK_BAD_INPUTS};
  auto& tables = drawing->def.tables;
  auto found =
      std::find_if(tables.begin(), tables.end(), [&](const TableDef& t) { return t.id == handle->id; });
  if (found == tables.end()) return {PRO_TK_NOT_EXIST, drawing};
  return {PRO_TK_NO_ERROR, drawing, &*found};
}

ItemRef<CellDef> FindNote(const HostState& state, const ProDtlnote* handle) {
  Model* drawing = handle && handle->type == PRO_NOTE ? LiveDrawing(state, handle->owner) : nullptr;
  if (!drawing) return {PRO_TK_BAD_INPUTS};
  for (TableDef& table : drawing->def.tables) {
    for (CellDef& cell : table.cells) {
      if (cell.noteId == handle->id) return {PRO_TK_NO_ERROR, drawing, &cell};
    }
  }
  return {PRO_TK_NOT_EXIST, drawing};
}

int NewItemId(Model& drawing) {
  int highest = drawing.lastItemId;
  for (const TableDef& table : drawing.def.tables) {
    highest = std::max(highest, table.id);
    for (const CellDef& cell : table.cells) highest = std::max(highest, cell.noteId);
  }
  drawing.lastItemId = highest + 1;
  return drawing.lastItemId;
}

}  // namespace sim
