// The host's message area.
#include "ProMessage.h"

#include "MessageFile.h"
#include "MessageFormat.h"
#include "ToolkitCall.h"

#include <cstdarg>

extern "C" void ProMessageClear(void) {
  sim::ToolkitCall call("ProMessageClear");
  if (call.Failed()) return;
  sim::MessageArea& area = call.state().messages;
  area.currentLine.clear();
  ++area.clearCount;
}

extern "C" ProError ProMessageDisplay(ProFileName file_name, ProCharLine message_name, ...) {
  sim::ToolkitCall call("ProMessageDisplay", {file_name, message_name});
  if (call.Failed()) return call.Status();
  sim::MessageLookup message = sim::LookupMessage(call.state(), file_name, message_name);
  if (message.status != PRO_TK_NO_ERROR) return PRO_TK_MSG_NOT_FOUND;
  va_list args;
  va_start(args, message_name);
  std::wstring line = sim::FormatMessage(message.text, args);
  va_end(args);
  call.state().ShowMessage(std::move(line));
  return PRO_TK_NO_ERROR;
}
