// Window-less timers with the system's semantics: the id of a timer without a
// window is assigned by the system, not taken from the call, so KillTimer with
// the id the caller chose stops nothing unless the ids happen to agree.
// Callbacks run on the thread that drives RunDueTimers, one at a time.
#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

namespace platform {

using TimerProc = void (*)(void* window, unsigned message, std::uintptr_t id, unsigned long time);
using TimerClock = std::chrono::steady_clock;

// Returns the new timer's id, never 0.
std::uintptr_t SetTimer(void* window, std::uintptr_t id, unsigned elapseMs, TimerProc proc);
bool KillTimer(void* window, std::uintptr_t id);

// Fires every timer due at `now` once; returns how many fired. The event loop
// of the host calls it.
int RunDueTimers(TimerClock::time_point now = TimerClock::now());

struct TimerInfo {
  std::uintptr_t id;
  unsigned elapseMs;
  TimerProc proc;
};
std::vector<TimerInfo> ActiveTimers();
bool FindTimer(std::uintptr_t id, TimerInfo* info);

}  // namespace platform
