#include "universal/LogTimes.h"

#include <algorithm>
#include <cmath>

namespace tarnview {
namespace {

constexpr double kDay = 86400;
/// A clock that falls by more was set anew; by less, lines changed places.
constexpr double kSetAnew = 1;

/// The median of the first steps up; 0 for none.
double UsualStep(std::span<const double> stamps) {
  constexpr std::size_t kEnough = 4096;
  std::vector<double> steps;
  for (std::size_t at = 1; at < stamps.size() && steps.size() < kEnough; ++at)
    if (stamps[at] > stamps[at - 1]) steps.push_back(stamps[at] - stamps[at - 1]);
  if (steps.empty()) return 0;
  const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
  std::nth_element(steps.begin(), middle, steps.end());
  return *middle;
}

/// From the first stamp on, rising or standing still.
std::vector<double> Rising(std::span<const double> stamps, TimeForm form) {
  std::vector<double> times(stamps.size());
  const double step = UsualStep(stamps);
  double moved = 0, last = 0;
  bool begun = false;
  for (std::size_t at = 0; at < stamps.size(); ++at) {
    double time = stamps[at] + moved;
    if (!begun && !std::isnan(time)) {
      moved = -time;
      time = 0;
      begun = true;
    }
    if (std::isnan(time)) time = last;
    if (form == TimeForm::Clock && time < last - kDay / 2) {
      moved += kDay;
      time += kDay;
    } else if (time < last - kSetAnew) {
      moved += last + step - time;
      time = last + step;
    }
    times[at] = last = std::max(time, last);
  }
  return times;
}

/// Spreads runs of equal times. A pause behind a run is no part of its span: that is at most three
/// times the usual.
void Spread(std::vector<double>& times) {
  double usual = 0;
  for (std::size_t first = 0; first < times.size();) {
    const double time = times[first];
    std::size_t end = first + 1;
    while (end < times.size() && times[end] == time) ++end;
    double span = end < times.size() ? times[end] - time : usual;
    if (usual > 0) span = std::min(span, 3 * usual);
    for (std::size_t at = first + 1; at < end; ++at)
      times[at] = time + span * static_cast<double>(at - first) / static_cast<double>(end - first);
    if (span > 0) usual = span;
    first = end;
  }
}

}  // namespace

std::vector<double> TimesOfLines(std::span<const double> stamps, TimeForm form) {
  std::vector<double> times = Rising(stamps, form);
  Spread(times);
  return times;
}

}  // namespace tarnview
