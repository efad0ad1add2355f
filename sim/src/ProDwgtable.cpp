// Tables on drawings. A table is part of its drawing's definition, so that a
// save writes it and a load brings it back; its lengths are kept in the
// units of its sheet.
#include "ProDwgtable.h"

#include "DrawingItems.h"
#include "HostMemory.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int kMaxColumns = 50;
constexpr int kMaxRows = 100;
// Entered text is narrowed as the host's default text style does.
constexpr double kEnteredWidthFactor = 0.8;

bool AllPositive(const double* values, int count) {
  return std::all_of(values, values + count, [](double value) { return value > 0; });
}

bool IsJustification(ProHorzJust justification) {
  return justification == PROHORZJUST_LEFT || justification == PROHORZJUST_CENTER ||
         justification == PROHORZJUST_RIGHT;
}

// A table has one segment, named 0 or, as the only one, -1.
bool IsSegment(int segment) { return segment == 0 || segment == -1; }

bool InTable(const sim::TableDef& table, int column, int row) {
  return column >= 1 && column <= static_cast<int>(table.columns.size()) && row >= 1 &&
         row <= static_cast<int>(table.rows.size());
}

double Height(const sim::TableDef& table) {
  return std::accumulate(table.rows.begin(), table.rows.end(), 0.0);
}

double Width(const sim::TableDef& table) {
  return std::accumulate(table.columns.begin(), table.columns.end(), 0.0,
                         [](double sum, const sim::ColumnDef& column) { return sum + column.width; });
}

sim::TableDef NewTable(const pro_draw_table& data, int id, int sheet) {
  sim::TableDef table;
  table.id = id;
  table.sheet = sheet;
  table.origin = data.origin;
  bool inCharacters = data.sizeType != PRODWGTABLESIZE_SCREEN;
  for (const sim::ColumnDef& column : data.columns) {
    table.columns.push_back(
        {inCharacters ? column.width * table.charWidth : column.width, column.justification});
  }
  for (double height : data.rows) table.rows.push_back(inCharacters ? height * table.charHeight : height);
  return table;
}

// Cells stay ordered by row, then column, as a reader of the file expects.
void PutCell(sim::TableDef& table, sim::CellDef cell) {
  auto before = [](const sim::CellDef& a, const sim::CellDef& b) {
    return std::pair(a.row, a.column) < std::pair(b.row, b.column);
  };
  table.cells.insert(std::upper_bound(table.cells.begin(), table.cells.end(), cell, before), std::move(cell));
}

}  // namespace

extern "C" ProError ProDwgtabledataAlloc(ProDwgtabledata* data) {
  sim::ToolkitCall call("ProDwgtabledataAlloc");
  if (call.Failed()) return call.Status();
  if (!data) return PRO_TK_BAD_INPUTS;
  *data = call.state().details.NewTableData();
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtabledataFree(ProDwgtabledata data) {
  sim::ToolkitCall call("ProDwgtabledataFree");
  if (call.Failed()) return call.Status();
  return call.state().details.FreeTableData(data) ? PRO_TK_NO_ERROR : PRO_TK_BAD_INPUTS;
}

extern "C" ProError ProDwgtabledataOriginSet(ProDwgtabledata data, ProPoint3d origin) {
  sim::ToolkitCall call("ProDwgtabledataOriginSet");
  if (call.Failed()) return call.Status();
  pro_draw_table* live = call.state().details.TableData(data);
  if (!live || !origin) return PRO_TK_BAD_INPUTS;
  live->origin = {origin[0], origin[1], origin[2]};
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtabledataSizetypeSet(ProDwgtabledata data, ProDwgtableSizetype size_type) {
  sim::ToolkitCall call("ProDwgtabledataSizetypeSet", {size_type});
  if (call.Failed()) return call.Status();
  pro_draw_table* live = call.state().details.TableData(data);
  if (!live || size_type < PRODWGTABLESIZE_CHARACTERS || size_type > PRODWGTABLESIZE_CHARS_TRUE)
    return PRO_TK_BAD_INPUTS;
  live->sizeType = size_type;
  return PRO_TK_NO_ERROR;
}

// Without justifications every column is left-justified.
extern "C" ProError ProDwgtabledataColumnsSet(ProDwgtabledata data, int n_columns, double* widths,
                                              ProHorzJust* justifications) {
  sim::ToolkitCall call("ProDwgtabledataColumnsSet", {n_columns});
  if (call.Failed()) return call.Status();
  pro_draw_table* live = call.state().details.TableData(data);
  if (!live || n_columns < 1 || n_columns > kMaxColumns || !widths || !AllPositive(widths, n_columns))
    return PRO_TK_BAD_INPUTS;
  if (justifications && !std::all_of(justifications, justifications + n_columns, IsJustification))
    return PRO_TK_BAD_INPUTS;
  live->columns.clear();
  for (int i = 0; i < n_columns; ++i)
    live->columns.push_back({widths[i], justifications ? justifications[i] : PROHORZJUST_LEFT});
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtabledataRowsSet(ProDwgtabledata data, int n_rows, double* heights) {
  sim::ToolkitCall call("ProDwgtabledataRowsSet", {n_rows});
  if (call.Failed()) return call.Status();
  pro_draw_table* live = call.state().details.TableData(data);
  if (!live || n_rows < 1 || n_rows > kMaxRows || !heights || !AllPositive(heights, n_rows))
    return PRO_TK_BAD_INPUTS;
  live->rows.assign(heights, heights + n_rows);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDrawingTableCreate(ProDrawing drawing, ProDwgtabledata table_data, int display,
                                          ProDwgtable* table) {
  sim::ToolkitCall call("ProDrawingTableCreate", {sim::ModelRef{drawing}, display});
  if (call.Failed()) return call.Status();
  sim::Model* live = sim::LiveDrawing(call.state(), drawing);
  const pro_draw_table* data = call.state().details.TableData(table_data);
  if (!live || !data || !table || data->columns.empty() || data->rows.empty()) return PRO_TK_BAD_INPUTS;
  int id = sim::NewItemId(*live);
  live->def.tables.push_back(NewTable(*data, id, live->def.currentSheet));
  live->modified = true;
  *table = {PRO_DRAW_TABLE, id, drawing};
  return PRO_TK_NO_ERROR;
}

// The cell gets a new note of one text a line; no lines empty it.
extern "C" ProError ProDwgtableTextEnter(ProDwgtable* table, int column, int row, ProWstring* lines) {
  sim::ToolkitCall call("ProDwgtableTextEnter", {sim::ItemOwner(table), sim::ItemId(table), column, row});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  sim::TableDef& live = *found.item;
  if (!InTable(live, column, row) || !sim::IsLiveArray(lines)) return PRO_TK_BAD_INPUTS;
  int count = sim::ArraySize(lines);
  if (std::any_of(lines, lines + count, [](const wchar_t* line) { return !line; })) return PRO_TK_BAD_INPUTS;
  std::erase_if(live.cells,
                [&](const sim::CellDef& cell) { return cell.row == row && cell.column == column; });
  if (count > 0) {
    sim::CellDef cell{row, column, sim::NewItemId(*found.drawing), {}};
    for (int i = 0; i < count; ++i) cell.lines.push_back({{lines[i], live.charHeight, kEnteredWidthFactor}});
    PutCell(live, std::move(cell));
  }
  found.drawing->modified = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableRowAdd(ProDwgtable* table, int insert_after_row, int display,
                                      double height_in_chars) {
  sim::ToolkitCall call("ProDwgtableRowAdd",
                        {sim::ItemOwner(table), sim::ItemId(table), insert_after_row, display});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  sim::TableDef& live = *found.item;
  if (insert_after_row < 0 || insert_after_row > static_cast<int>(live.rows.size()) || !(height_in_chars > 0))
    return PRO_TK_BAD_INPUTS;
  live.rows.insert(live.rows.begin() + insert_after_row, height_in_chars * live.charHeight);
  for (sim::CellDef& cell : live.cells) {
    if (cell.row > insert_after_row) ++cell.row;
  }
  found.drawing->modified = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableRowsCount(ProDwgtable* table, int* n_rows) {
  sim::ToolkitCall call("ProDwgtableRowsCount", {sim::ItemOwner(table), sim::ItemId(table)});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  if (!n_rows) return PRO_TK_BAD_INPUTS;
  *n_rows = static_cast<int>(found.item->rows.size());
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableColumnsCount(ProDwgtable* table, int* n_columns) {
  sim::ToolkitCall call("ProDwgtableColumnsCount", {sim::ItemOwner(table), sim::ItemId(table)});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  if (!n_columns) return PRO_TK_BAD_INPUTS;
  *n_columns = static_cast<int>(found.item->columns.size());
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableRowSizeGet(ProDwgtable* table, int segment, int row, double* size) {
  sim::ToolkitCall call("ProDwgtableRowSizeGet", {sim::ItemOwner(table), sim::ItemId(table), segment, row});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  const auto& rows = found.item->rows;
  if (!IsSegment(segment) || row < 0 || row >= static_cast<int>(rows.size()) || !size)
    return PRO_TK_BAD_INPUTS;
  *size = rows[row];
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableColumnSizeGet(ProDwgtable* table, int segment, int column, double* size) {
  sim::ToolkitCall call("ProDwgtableColumnSizeGet",
                        {sim::ItemOwner(table), sim::ItemId(table), segment, column});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  const auto& columns = found.item->columns;
  if (!IsSegment(segment) || column < 0 || column >= static_cast<int>(columns.size()) || !size)
    return PRO_TK_BAD_INPUTS;
  *size = columns[column].width;
  return PRO_TK_NO_ERROR;
}

// The outline runs from the bottom-left to the top-right corner, on the sheet.
extern "C" ProError ProDwgtableInfoGet(ProDwgtable* table, int segment, ProDwgtableInfo* table_info) {
  sim::ToolkitCall call("ProDwgtableInfoGet", {sim::ItemOwner(table), sim::ItemId(table), segment});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  if (!IsSegment(segment) || !table_info) return PRO_TK_BAD_INPUTS;
  const sim::TableDef& live = *found.item;
  const auto& origin = live.origin;
  ProDwgtableInfo info{};
  std::copy(origin.begin(), origin.end(), info.seg_origin);
  info.nrows = static_cast<int>(live.rows.size());
  info.ncols = static_cast<int>(live.columns.size());
  info.outline[0][0] = origin[0];
  info.outline[0][1] = origin[1] - Height(live);
  info.outline[1][0] = origin[0] + Width(live);
  info.outline[1][1] = origin[1];
  info.seg_char_height = info.table_char_height = live.charHeight;
  info.char_width = live.charWidth;
  *table_info = info;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableSegSheetGet(ProDwgtable* p_table, int segment, int* sheet) {
  sim::ToolkitCall call("ProDwgtableSegSheetGet", {sim::ItemOwner(p_table), sim::ItemId(p_table), segment});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), p_table);
  if (found.status) return found.status;
  if (!IsSegment(segment) || !sheet) return PRO_TK_BAD_INPUTS;
  *sheet = found.item->sheet;
  return PRO_TK_NO_ERROR;
}

// The new position is the table's top-left corner on its sheet.
extern "C" ProError ProDwgtableSegMove(ProDwgtable* p_table, int segment, ProVector new_pos,
                                       ProBoolean display) {
  sim::ToolkitCall call("ProDwgtableSegMove",
                        {sim::ItemOwner(p_table), sim::ItemId(p_table), segment, display});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), p_table);
  if (found.status) return found.status;
  if (!IsSegment(segment) || !new_pos) return PRO_TK_BAD_INPUTS;
  found.item->origin = {new_pos[0], new_pos[1], new_pos[2]};
  found.drawing->modified = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDwgtableCellNoteGet(ProDwgtable* table, int column, int row, ProDtlnote* note) {
  sim::ToolkitCall call("ProDwgtableCellNoteGet", {sim::ItemOwner(table), sim::ItemId(table), column, row});
  if (call.Failed()) return call.Status();
  auto found = sim::FindTable(call.state(), table);
  if (found.status) return found.status;
  if (!InTable(*found.item, column, row) || !note) return PRO_TK_BAD_INPUTS;
  const auto& cells = found.item->cells;
  auto cell = std::find_if(cells.begin(), cells.end(),
                           [&](const sim::CellDef& c) { return c.row == row && c.column == column; });
  if (cell == cells.end()) return PRO_TK_EMPTY;
  *note = {PRO_NOTE, cell->noteId, table->owner};
  return PRO_TK_NO_ERROR;
}
