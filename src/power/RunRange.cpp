#include "power/RunRange.h"

#include "power/PowerRun.h"

namespace tarnview {

RunRange CheckedRange(SampleRange typed, const SampleRange& log, const SampleRange& mainWindow) {
  RunRange checked{typed, std::nullopt};
  auto& [from, to] = checked.range;
  if (from < log.from || from > log.to) from = mainWindow.from;
  if (to > log.to || to == 0 || to < log.from) to = mainWindow.to;
  if (from > to) from = to - 1;
  if (to - from > kLongestRun) {
    checked.message = Message::PowerRangeShortened;
    from = to - kLongestRun;
  }
  if (to - from < kShortestRun) {
    checked.message = Message::TooFewPowerSamples;
    checked.drawable = false;
  }
  return checked;
}

}  // namespace tarnview
