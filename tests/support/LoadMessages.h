#pragma once

#include <algorithm>
#include <ostream>
#include <vector>

#include "loaders/LoadContext.h"

namespace tarnview {

/// Tests that care for the numbers alone compare with those.
inline bool operator==(const std::vector<LoadMessage>& messages, const std::vector<int>& ids) {
  return std::equal(
      messages.begin(), messages.end(), ids.begin(), ids.end(),
      [](const LoadMessage& message, int id) { return static_cast<int>(message.id) == id; });
}

inline void PrintTo(const LoadMessage& message, std::ostream* out) {
  *out << static_cast<int>(message.id) << " " << message.extra;
}

}  // namespace tarnview
