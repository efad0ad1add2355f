// The items of drawings that the plug-in holds handles of: tables and the
// notes in their cells. Call with the host held.
#pragma once

#include "Host.h"
#include "ProDtlnote.h"
#include "ToolkitCall.h"

namespace sim {

// Null when the handle names no drawing in session.
Model* LiveDrawing(const HostState& state, const void* handle);

template <typename Item>
struct ItemRef {
  ProError status = PRO_TK_NO_ERROR;
  Model* drawing = nullptr;
  Item* item = nullptr;  // null unless the status is PRO_TK_NO_ERROR
};

// PRO_TK_BAD_INPUTS for a handle that is no table of a drawing in session,
// PRO_TK_NOT_EXIST for a table the drawing does not have (any longer).
ItemRef<TableDef> FindTable(const HostState& state, const ProDwgtable* handle);
// The same for the note of a table's cell.
ItemRef<CellDef> FindNote(const HostState& state, const ProDtlnote* handle);

// An id that no item of the drawing has, nor had in this session.
int NewItemId(Model& drawing);

// For the call log: the drawing and the id an item handle names.
inline ModelRef ItemOwner(const ProModelitem* item) { return {item ? item->owner : nullptr}; }
inline int ItemId(const ProModelitem* item) { return item ? item->id : PRO_VALUE_UNUSED; }

}  // namespace sim
