#include "power/SpeedQuery.h"

#include <algorithm>

#include "base/Numbers.h"
#include "model/ConversionTables.h"
#include "power/PaddedNumber.h"

namespace tarnview {
namespace {

using Series = std::vector<SpeedPoint>;

Series::const_iterator Reaching(const Series& series, Series::const_iterator at, double speed) {
  return std::find_if(at, series.end(), [speed](const SpeedPoint& p) { return p.speed >= speed; });
}

/// When the series crosses the speed that it first reaches at `point`; the first point has no way
/// there.
double TimeOf(const Series& series, Series::const_iterator point, double speed) {
  if (point == series.begin()) return point->seconds;
  const SpeedPoint& before = *(point - 1);
  return LinearInterpolate(before.speed, point->speed, speed, before.seconds, point->seconds,
                           /*clamp=*/true);
}

}  // namespace

std::string TimeBetween(const Series& series, double from, double to) {
  constexpr const char* kNone = "N/A";
  if (series.empty()) return kNone;
  if (RoundHalfEven(from) < series.front().speed || RoundHalfEven(to) > series.back().speed)
    return kNone;
  const auto start = Reaching(series, series.begin(), from);
  const auto end = Reaching(series, start, to);
  if (end == series.end()) return kNone;
  return PaddedNumber(TimeOf(series, end, to) - TimeOf(series, start, from), 2, 2);
}

}  // namespace tarnview
