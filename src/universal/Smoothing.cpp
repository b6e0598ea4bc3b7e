#include "universal/Smoothing.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include "base/Numbers.h"
#include "model/ConversionTables.h"

namespace tarnview {

void SmoothColumn(SampleStore& store, int column, std::int32_t least) {
  if (store.Column(column).empty()) return;  // zeros throughout
  const std::span<std::int32_t> values = store.Writable(column);
  std::size_t last = 0;
  std::int32_t lastValue = values[0];
  for (std::size_t i = 1; i < values.size(); ++i) {
    const std::int32_t value = values[i];
    if (value == lastValue) continue;
    for (std::size_t j = last; j <= i; ++j) {
      const double y = LinearInterpolate(static_cast<double>(last), static_cast<double>(i),
                                         static_cast<double>(j), lastValue, value, false);
      values[j] = std::max(RoundToLong(y), least);
    }
    last = i;
    lastValue = value;
  }
}

}  // namespace tarnview
