// Tables on drawings: the description a table is created from, and the
// table itself, a model item of its drawing.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef ProModelitem ProDwgtable;
typedef ProModelitem ProDtlnote;

typedef struct pro_draw_table* ProDwgtabledata;

typedef enum pro_dwgtable_sizetype {
  PRODWGTABLESIZE_CHARACTERS = 0,
  PRODWGTABLESIZE_SCREEN = 1,
  PRODWGTABLESIZE_CHARS_TRUE = 2
} ProDwgtableSizetype;

typedef enum pro_horz_just {
  PROHORZJUST_LEFT = 0,
  PROHORZJUST_CENTER = 1,
  PROHORZJUST_RIGHT = 2
} ProHorzJust;

typedef struct prodrw_tbl_info {
  int rotation;
  double seg_origin[3];
  int nrows;
  int ncols;
  double outline[2][3];
  double seg_char_height;
  double table_char_height;
  double char_width;
} ProDwgtableInfo;

extern ProError ProDwgtabledataAlloc(ProDwgtabledata* data);
extern ProError ProDwgtabledataFree(ProDwgtabledata data);
extern ProError ProDwgtabledataOriginSet(ProDwgtabledata data, ProPoint3d origin);
extern ProError ProDwgtabledataSizetypeSet(ProDwgtabledata data, ProDwgtableSizetype size_type);
// At most 50 columns. Widths and heights count in characters unless the size
// type is PRODWGTABLESIZE_SCREEN; justifications may be null: all left.
extern ProError ProDwgtabledataColumnsSet(ProDwgtabledata data, int n_columns, double* widths,
                                          ProHorzJust* justifications);
// At most 100 rows.
extern ProError ProDwgtabledataRowsSet(ProDwgtabledata data, int n_rows, double* heights);
// On the drawing's current sheet.
extern ProError ProDrawingTableCreate(ProDrawing drawing, ProDwgtabledata table_data, int display,
                                      ProDwgtable* table);

// Rows and columns of text entry and cell notes count from 1, those of sizes
// from 0. `lines` is a ProArray of wide strings, one for a line. A table that
// its drawing no longer has answers PRO_TK_NOT_EXIST.
extern ProError ProDwgtableTextEnter(ProDwgtable* table, int column, int row, ProWstring* lines);
// 0 inserts at the top; the height counts in characters whatever the size type.
extern ProError ProDwgtableRowAdd(ProDwgtable* table, int insert_after_row, int display,
                                  double height_in_chars);
extern ProError ProDwgtableRowsCount(ProDwgtable* table, int* n_rows);
extern ProError ProDwgtableColumnsCount(ProDwgtable* table, int* n_columns);
// Sizes are in the units of the table's sheet.
extern ProError ProDwgtableRowSizeGet(ProDwgtable* table, int segment, int row, double* size);
extern ProError ProDwgtableColumnSizeGet(ProDwgtable* table, int segment, int column, double* size);
extern ProError ProDwgtableInfoGet(ProDwgtable* table, int segment, ProDwgtableInfo* table_info);
// Segment -1 stands for the only segment of a one-segment table.
extern ProError ProDwgtableSegSheetGet(ProDwgtable* p_table, int segment, int* sheet);
extern ProError ProDwgtableSegMove(ProDwgtable* p_table, int segment, ProVector new_pos, ProBoolean display);
// PRO_TK_EMPTY for a cell without text.
extern ProError ProDwgtableCellNoteGet(ProDwgtable* table, int column, int row, ProDtlnote* note);

PRO_END_C_DECLS
