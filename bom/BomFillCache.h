// The masses and outline boxes of the models met while one list is filled.
// They do not change during a filling, so each is asked of the host once;
// the filling owns the cache and drops it with its rows, as the models may
// change between fillings.
#pragma once

#include <array>
#include <map>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "ProObjects.h"

struct BomFillCache {
  template <class Value>
  struct Result {
    int status = 0;
    Value value{};
  };
  // A part's box does not depend on where it sits; an assembly's is taken
  // in the frame of the row's first occurrence, whose path is in the key.
  using BoxKey = std::tuple<ProMdl, int, std::vector<int>>;

  std::unordered_map<ProMdl, Result<double>> masses;
  std::map<BoxKey, Result<std::array<double, 6>>> boxes;
};

// The value remembered under `key`, or `compute(value)`'s status and value,
// remembered. `compute` may add to `memo` itself.
template <class Memo, class Key, class Value, class Compute>
int Remembered(Memo& memo, const Key& key, Value& value, Compute compute) {
  if (auto found = memo.find(key); found != memo.end()) {
    value = found->second.value;
    return found->second.status;
  }
  int status = compute(value);
  memo.emplace(key, typename Memo::mapped_type{status, value});
  return status;
}
