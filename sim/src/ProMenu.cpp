// Command macros: queued for the host, which lists them in order.
#include "ProMenu.h"

#include "ToolkitCall.h"

extern "C" ProError ProMacroLoad(wchar_t* macro) {
  sim::ToolkitCall call("ProMacroLoad", {macro});
  if (call.Failed()) return call.Status();
  if (!macro || !*macro) return PRO_TK_GENERAL_ERROR;
  call.state().macros.push_back(macro);
  return PRO_TK_NO_ERROR;
}
