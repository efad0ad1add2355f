// Objects of the session in the order they entered it, each found by its
// address in constant time: the toolkit looks up a handle on every call.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace sim {

template <class T>
class IndexedList {
 public:
  void Add(T* item) {
    positions_.emplace(item, order_.size());
    order_.push_back(item);
  }
  // Later items move up one place.
  void Erase(const T* item) {
    auto found = positions_.find(item);
    if (found == positions_.end()) return;
    size_t at = found->second;
    positions_.erase(found);
    order_.erase(order_.begin() + static_cast<std::ptrdiff_t>(at));
    for (size_t i = at; i < order_.size(); ++i) positions_[order_[i]] = i;
  }
  // Keeps the first `count` items.
  void Truncate(size_t count) {
    for (size_t i = count; i < order_.size(); ++i) positions_.erase(order_[i]);
    order_.resize(count);
  }

  // Null for an address that is not in the list, which is never dereferenced.
  T* Find(const void* address) const {
    auto found = positions_.find(address);
    return found == positions_.end() ? nullptr : order_[found->second];
  }
  // From 0 in the order added.
  std::optional<size_t> Position(const void* address) const {
    auto found = positions_.find(address);
    if (found == positions_.end()) return std::nullopt;
    return found->second;
  }

  size_t size() const { return order_.size(); }
  auto begin() const { return order_.begin(); }
  auto end() const { return order_.end(); }
  std::span<T* const> From(size_t first) const { return std::span(order_).subspan(first); }

 private:
  std::vector<T*> order_;
  std::unordered_map<const void*, size_t> positions_;
};

}  // namespace sim
