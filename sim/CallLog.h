// Every toolkit call in the order made while logging is on, with its key
// arguments as UTF-8 texts (null texts log as ""; models log as their names,
// "?" when unknown). Logging is off at start and after StartHost, so that a
// long session's memory does not grow with the calls it serves.
#pragma once

#include <string>
#include <vector>

namespace sim {

struct CallRecord {
  std::string name;
  std::vector<std::string> args;

  bool operator==(const CallRecord&) const = default;
};

void SetCallLogging(bool on);
std::vector<CallRecord> CallLog();
void ClearCallLog();

}  // namespace sim
