// Strings the host allocates, and the narrow/wide conversions.
#include "ProWstring.h"

#include "CodePage.h"
#include "HostMemory.h"
#include "ToolkitCall.h"

#include <cstring>
#include <cwchar>

extern "C" ProError ProWstringFree(wchar_t* wstring) {
  sim::ToolkitCall call("ProWstringFree");
  if (call.Failed()) return call.Status();
  return sim::FreeHostString(wstring) ? PRO_TK_NO_ERROR : PRO_TK_BAD_INPUTS;
}

extern "C" ProError ProWstringproarrayFree(wchar_t** wstr_arr) {
  sim::ToolkitCall call("ProWstringproarrayFree");
  if (call.Failed()) return call.Status();
  if (!sim::IsLiveArray(wstr_arr)) return PRO_TK_BAD_INPUTS;
  for (int i = 0; i < sim::ArraySize(wstr_arr); ++i) sim::FreeHostString(wstr_arr[i]);
  sim::FreeArray(wstr_arr);
  return PRO_TK_NO_ERROR;
}

// The caller's buffer is taken to be large enough, as the host does.
extern "C" wchar_t* ProStringToWstring(wchar_t* wstr, char* str) {
  sim::ToolkitCall call("ProStringToWstring", {str});
  if (call.Failed() || !wstr || !str) return wstr;
  std::wstring wide = platform::ToWide(str);
  std::wmemcpy(wstr, wide.c_str(), wide.size() + 1);
  return wstr;
}

extern "C" char* ProWstringToString(char* str, wchar_t* wstr) {
  sim::ToolkitCall call("ProWstringToString", {wstr});
  if (call.Failed() || !str || !wstr) return str;
  std::string narrow = platform::ToNarrow(wstr);
  std::memcpy(str, narrow.c_str(), narrow.size() + 1);
  return str;
}
