// Parts.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

extern ProError ProPartDensityGet(ProPart part, double* density);
// The part's current material.
extern ProError ProPartMaterialNameGet(ProPart part, ProName material_name);

PRO_END_C_DECLS
