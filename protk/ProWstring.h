// Strings the host allocates, and the narrow/wide conversions.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

extern ProError ProWstringFree(wchar_t* wstring);
extern ProError ProWstringproarrayFree(wchar_t** wstr_arr);
extern wchar_t* ProStringToWstring(wchar_t* wstr, char* str);
extern char* ProWstringToString(char* str, wchar_t* wstr);

PRO_END_C_DECLS
