#include "FaultInjection.h"

#include "Host.h"

namespace sim {

void FailCall(const std::string& callName, ProError status, Times times) {
  std::lock_guard hold(TheHost().mutex);
  TheHost().state.failures[callName] = {status, times};
}

void ClearFailures() {
  std::lock_guard hold(TheHost().mutex);
  TheHost().state.failures.clear();
}

}  // namespace sim
