// Scripted failures of toolkit calls: the named call answers the status
// without doing anything.
#pragma once

#include "ProToolkit.h"

#include <string>

namespace sim {

enum class Times { Once, Always };

void FailCall(const std::string& callName, ProError status, Times times);
void ClearFailures();

}  // namespace sim
