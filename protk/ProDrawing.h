// Drawings and the models they show.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

// The host allocates the array; free it with ProArrayFree. E_NOT_FOUND when
// the drawing shows no model.
extern ProError ProDrawingSolidsCollect(ProDrawing drawing, ProSolid** solids);

// Sheets count from 1. The transformation takes a point of the sheet into the
// drawing's coordinates; `sheet_size` names the format, such as "A3".
extern ProError ProDrawingSheetTrfGet(ProDrawing drawing, int sheet, ProName sheet_size, ProMatrix transform);
extern ProError ProDrawingCurrentSheetGet(ProDrawing drawing, int* sheet);

PRO_END_C_DECLS
