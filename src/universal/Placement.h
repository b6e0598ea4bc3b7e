#pragma once

#include <cstddef>

namespace tarnview {

/// Where a collection puts a new entry, from 0: before or behind a position (both from 1; `before`
/// wins), or at the end where neither lies within the collection.
constexpr std::size_t Placement(std::size_t count, int before, int after) {
  const auto within = [count](int position) {
    return position >= 1 && static_cast<std::size_t>(position) <= count;
  };
  if (within(before)) return static_cast<std::size_t>(before - 1);
  if (within(after)) return static_cast<std::size_t>(after);
  return count;
}

}  // namespace tarnview
