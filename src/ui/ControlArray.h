#pragma once

#include <algorithm>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "ui/Control.h"

namespace tarnview {

/// Controls that share one name and are told apart by an index, as `mnuRecentlyUsed(2)`.
template <class Kind>
class ControlArray {
 public:
  /// Members with these indices; `args` follow the name in each one's constructor.
  template <class... Args>
  ControlArray(Form& form, const std::string& name, const std::vector<int>& indices,
               const Args&... args) {
    for (int index : indices)
      members_.push_back(std::make_unique<Kind>(form, name, args..., index));
  }

  /// By index; the index must be one of the array's.
  Kind& operator()(int index) { return **Find(index); }
  const Kind& operator()(int index) const { return **Find(index); }
  int Count() const { return static_cast<int>(members_.size()); }

  auto begin() const { return members_.begin(); }
  auto end() const { return members_.end(); }

 private:
  auto Find(int index) const {
    return std::find_if(members_.begin(), members_.end(),
                        [&](const auto& one) { return one->index == index; });
  }

  std::vector<std::unique_ptr<Kind>> members_;
};

/// Indices 0 to count - 1.
inline std::vector<int> UpTo(int count) {
  std::vector<int> indices(static_cast<std::size_t>(count));
  std::iota(indices.begin(), indices.end(), 0);
  return indices;
}

}  // namespace tarnview
