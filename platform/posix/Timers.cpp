#include "Timers.h"

#include <map>
#include <mutex>
#include <vector>

namespace platform {
namespace {

struct Timer {
  unsigned elapseMs;
  TimerProc proc;
  TimerClock::time_point due;
};

std::mutex timersMutex;
std::map<std::uintptr_t, Timer> timers;
// The system hands out ids of its own; starting far from the small numbers
// callers choose keeps the two apart, as on Windows.
std::uintptr_t nextId = 0x7F01;

}  // namespace

std::uintptr_t SetTimer(void* window, std::uintptr_t id, unsigned elapseMs, TimerProc proc) {
  std::lock_guard lock(timersMutex);
  if (window) {
    // A window's timer keeps the caller's id and replaces one of the same id.
    timers[id] = {elapseMs, proc, TimerClock::now() + std::chrono::milliseconds(elapseMs)};
    return id;
  }
  std::uintptr_t assigned = nextId++;
  timers[assigned] = {elapseMs, proc, TimerClock::now() + std::chrono::milliseconds(elapseMs)};
  return assigned;
}

bool KillTimer(void*, std::uintptr_t id) {
  std::lock_guard lock(timersMutex);
  return timers.erase(id) > 0;
}

int RunDueTimers(TimerClock::time_point now) {
  std::vector<std::pair<std::uintptr_t, TimerProc>> due;
  {
    std::lock_guard lock(timersMutex);
    for (auto& [id, timer] : timers) {
      if (timer.due <= now) {
        due.emplace_back(id, timer.proc);
        timer.due = now + std::chrono::milliseconds(timer.elapseMs);
      }
    }
  }
  int fired = 0;
  for (auto& [id, proc] : due) {
    {
      // An earlier callback of this round may have killed it.
      std::lock_guard lock(timersMutex);
      if (!timers.count(id)) continue;
    }
    auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count();
    proc(nullptr, 0x0113 /* WM_TIMER */, id, static_cast<unsigned long>(ms));
    ++fired;
  }
  return fired;
}

std::vector<TimerInfo> ActiveTimers() {
  std::lock_guard lock(timersMutex);
  std::vector<TimerInfo> active;
  for (const auto& [id, timer] : timers) active.push_back({id, timer.elapseMs, timer.proc});
  return active;
}

bool FindTimer(std::uintptr_t id, TimerInfo* info) {
  std::lock_guard lock(timersMutex);
  auto it = timers.find(id);
  if (it == timers.end()) return false;
  if (info) *info = {id, it->second.elapseMs, it->second.proc};
  return true;
}

}  // namespace platform
