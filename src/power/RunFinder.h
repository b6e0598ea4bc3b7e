#pragma once

#include <cstdint>
#include <vector>

#include "model/OpenLog.h"

namespace tarnview {

/// A stretch of a log that a power graph can be drawn of.
struct FoundRun {
  std::int32_t from = 0, to = 0;  ///< `Sample` values
  double fromRpm = 0, toRpm = 0;
  double seconds = 0;
};

/// Stretches of full throttle with rising rpm in one gear, in the log's order. Where the log does
/// not deliver the throttle, rising rpm alone count.
std::vector<FoundRun> FindRuns(const OpenLog& log);

}  // namespace tarnview
