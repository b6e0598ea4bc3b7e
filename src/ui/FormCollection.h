#pragma once

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "ui/Form.h"

namespace tarnview {

/// The open child windows of one kind, by a running number from 1. A window that closes takes
/// itself out by Remove; its object lives on until the next Add, since it is still at work when it
/// leaves.
template <class Window>
class FormCollection {
 public:
  /// The number that the next window gets.
  int NextNumber() const { return next_; }
  Window& Add(std::unique_ptr<Window> window) {
    left_.clear();
    return *(open_[next_++] = std::move(window));
  }
  void Remove(int number) {
    const auto found = open_.find(number);
    if (found == open_.end()) return;
    left_.push_back(std::move(found->second));
    open_.erase(found);
  }
  /// Closes them all.
  void UnloadAll() {
    while (!open_.empty()) {
      const int number = open_.begin()->first;
      open_.begin()->second->Unload();
      Remove(number);
    }
  }
  template <class Body>
  void ForEach(Body&& body) const {
    for (const auto& [number, window] : open_) body(*window);
  }
  int Count() const { return static_cast<int>(open_.size()); }

 private:
  int next_ = 1;
  std::map<int, std::unique_ptr<Window>> open_;
  std::vector<std::unique_ptr<Window>> left_;
};

}  // namespace tarnview
