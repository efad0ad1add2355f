// The host's message area. Arguments after the key are pointers, one per
// placeholder of the message: char* for %Ns, wchar_t* for %Nw, int* for %Nd,
// double* for %Nf.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

extern void ProMessageClear(void);
extern ProError ProMessageDisplay(ProFileName file_name, ProCharLine message_name, ...);

PRO_END_C_DECLS
