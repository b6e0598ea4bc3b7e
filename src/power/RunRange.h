#pragma once

#include <cstdint>
#include <optional>

#include "base/MessageTable.h"

namespace tarnview {

/// A range of `Sample` values.
struct SampleRange {
  std::int64_t from = 0, to = 0;
};

/// The range that a power graph is drawn of.
struct RunRange {
  SampleRange range;
  std::optional<Message> message;  ///< what the user must know of it
  bool drawable = true;            ///< long enough
};

/// Brings a range as it was typed into the log and to the length that a power graph takes. An end
/// outside the log becomes the main window's.
RunRange CheckedRange(SampleRange typed, const SampleRange& log, const SampleRange& mainWindow);

}  // namespace tarnview
