#include "model/LocateSample.h"

#include <algorithm>

namespace tarnview {

std::int32_t LocateSample(const OpenLog& log, std::int32_t guessIndex, std::int32_t sample) {
  std::int32_t index = std::clamp(guessIndex, log.glngFirstSample, log.glngLastSample);
  if (log.Sample(index) <= sample) {
    while (index < log.glngLastSample && log.Sample(index) < sample) ++index;
  } else {
    while (index > log.glngFirstSample && log.Sample(index) > sample) --index;
  }
  return index;
}

}  // namespace tarnview
