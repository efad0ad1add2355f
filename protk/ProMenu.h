// Command macros.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

// Queues the macro; it runs after control returns to the host.
extern ProError ProMacroLoad(wchar_t* macro);

PRO_END_C_DECLS
