// Selections: an item in the context of a component path.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef struct select3d* ProSelection;

// The path may be null only for an item of a part; the item may be null.
extern ProError ProSelectionAlloc(ProAsmcomppath* p_cmp_path, ProModelitem* p_mdl_itm,
                                  ProSelection* p_selection);
extern ProError ProSelectionFree(ProSelection* p_selection);

PRO_END_C_DECLS
