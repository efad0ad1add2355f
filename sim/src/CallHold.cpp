#include "CallHold.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>

namespace sim {

namespace {

// Apart from the host's own lock: a held call must not keep other threads
// from the host.
struct Holds {
  std::mutex mutex;
  std::condition_variable released;
  std::set<std::string, std::less<>> names;
  // Read without the lock, so that calls pay nothing while none is held.
  std::atomic<bool> any{false};
};

Holds& TheHolds() {
  static Holds holds;
  return holds;
}

}  // namespace

void HoldCall(const std::string& callName) {
  std::lock_guard lock(TheHolds().mutex);
  TheHolds().names.insert(callName);
  TheHolds().any = true;
}

void ReleaseCall(const std::string& callName) {
  {
    std::lock_guard lock(TheHolds().mutex);
    TheHolds().names.erase(callName);
    TheHolds().any = !TheHolds().names.empty();
  }
  TheHolds().released.notify_all();
}

void WaitWhileHeld(const char* callName) {
  Holds& holds = TheHolds();
  if (!holds.any) return;
  std::unique_lock lock(holds.mutex);
  holds.released.wait(lock, [&] { return !holds.names.contains(std::string_view(callName)); });
}

}  // namespace sim
