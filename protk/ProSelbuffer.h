// The selection buffer: what is highlighted in the graphics window.
#pragma once

#include "ProSelection.h"

PRO_BEGIN_C_DECLS

extern ProError ProSelbufferClear(void);
extern ProError ProSelbufferSelectionAdd(ProSelection object);

PRO_END_C_DECLS
