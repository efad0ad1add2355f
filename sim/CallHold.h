// Holding toolkit calls: a held function waits at its entry, on whatever
// thread calls it and before it takes the host, until it is released. Lets a
// test keep a worker's host calls in progress until the UI has done what it
// checks, with no dependence on how fast either thread runs.
#pragma once

#include <string>

namespace sim {

// From now on every call of `callName` waits until ReleaseCall(callName).
void HoldCall(const std::string& callName);
// Lets the waiting calls of `callName` and the later ones run.
void ReleaseCall(const std::string& callName);

// The entry of every toolkit function: returns once `callName` is not held.
void WaitWhileHeld(const char* callName);

}  // namespace sim
