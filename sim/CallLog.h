// Every toolkit call in the order made, with its key arguments as UTF-8
// texts (null texts log as ""; models log as their names, "?" when unknown).
#pragma once

#include <string>
#include <vector>

namespace sim {

struct CallRecord {
  std::string name;
  std::vector<std::string> args;

  bool operator==(const CallRecord&) const = default;
};

std::vector<CallRecord> CallLog();
void ClearCallLog();

}  // namespace sim
