#include "samplegraph/ClosestSample.h"

#include <algorithm>

#include "base/Numbers.h"
#include "model/Column.h"

namespace tarnview {

std::int32_t ClosestSampleNumberToTime(const OpenLog& log, std::int32_t lngTime) {
  const auto timeAt = [&](std::int32_t index) { return log.glngDataLog(kSecs, index); };
  const double first = timeAt(log.glngFirstSample), last = timeAt(log.glngLastSample);
  const double samples = static_cast<double>(log.glngLastSampleTime) - log.glngFirstSampleTime;
  double share = 0;
  if (last != first) share = (lngTime - first) / (last - first);
  std::int32_t index =
      std::clamp(RoundToLong(share * samples), log.glngFirstSample, log.glngLastSample);
  if (timeAt(index) >= lngTime) {
    while (index > log.glngFirstSample && timeAt(index) > lngTime) --index;
  } else {
    while (index < log.glngLastSample && timeAt(index) < lngTime) ++index;
  }
  return index;
}

}  // namespace tarnview
