#include "CallLog.h"

#include "Host.h"

namespace sim {

std::vector<CallRecord> CallLog() {
  std::lock_guard hold(TheHost().mutex);
  return TheHost().state.callLog;
}

void SetCallLogging(bool on) {
  std::lock_guard hold(TheHost().mutex);
  TheHost().state.logCalls = on;
}

void ClearCallLog() {
  std::lock_guard hold(TheHost().mutex);
  TheHost().state.callLog.clear();
}

}  // namespace sim
