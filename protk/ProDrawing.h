// Drawings and the models they show.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

// The host allocates the array; free it with ProArrayFree. E_NOT_FOUND when
// the drawing shows no model.
extern ProError ProDrawingSolidsCollect(ProDrawing drawing, ProSolid** solids);

PRO_END_C_DECLS
