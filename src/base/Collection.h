#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnview {

/// An ordered collection whose items may bear a key ("k12"). Positions count from 1. It owns its
/// items, which keep their address until they are removed.
template <class T>
class Collection {
 public:
  /// An empty key adds the item without one. An item of the same key stays beside it; the first is
  /// found.
  T& Add(T item, std::string key = "") {
    entries_.push_back({std::move(key), std::make_unique<T>(std::move(item))});
    return *entries_.back().item;
  }

  int Count() const { return static_cast<int>(entries_.size()); }
  /// By position, 1 to Count.
  T& Item(int position) { return *entries_[static_cast<std::size_t>(position - 1)].item; }
  const T& Item(int position) const {
    return *entries_[static_cast<std::size_t>(position - 1)].item;
  }
  /// By key; nullptr if there is none.
  T* Item(std::string_view key) { return const_cast<T*>(std::as_const(*this).Item(key)); }
  const T* Item(std::string_view key) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& e) { return e.key == key; });
    if (found == entries_.end()) return nullptr;
    return found->item.get();
  }

  void Remove(int position) { entries_.erase(entries_.begin() + (position - 1)); }
  void Remove(std::string_view key) {
    std::erase_if(entries_, [&](const Entry& e) { return e.key == key; });
  }
  void RemoveAll() { entries_.clear(); }

 private:
  struct Entry {
    std::string key;
    std::unique_ptr<T> item;
  };
  std::vector<Entry> entries_;
};

}  // namespace tarnview
