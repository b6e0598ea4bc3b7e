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

/// Lines of equal times.
struct Run {
  std::size_t first = 0, end = 0;
  double time = 0, span = 0;

  double Lines() const { return static_cast<double>(end - first); }
};

/// A pause behind a run is no part of its span: that is at most three times the usual.
std::vector<Run> RunsOf(const std::vector<double>& times) {
  std::vector<Run> runs;
  double usual = 0;
  for (std::size_t first = 0; first < times.size();) {
    Run run{first, first + 1, times[first], 0};
    while (run.end < times.size() && times[run.end] == run.time) ++run.end;
    run.span = run.end < times.size() ? times[run.end] - run.time : usual;
    if (usual > 0) run.span = std::min(run.span, 3 * usual);
    if (run.span > 0) usual = run.span;
    first = run.end;
    runs.push_back(run);
  }
  return runs;
}

/// Seconds a line of the runs that neither the log's start nor its end cuts, the median; 0 where
/// the stamps of most lines differ, or the log is too short to tell.
double SecondsOfWholeRuns(const std::vector<Run>& runs) {
  constexpr std::size_t kFewestRuns = 4, kFewestLines = 2;
  if (runs.size() < kFewestRuns) return 0;
  std::vector<double> each;
  std::size_t lines = 0;
  for (std::size_t at = 1; at + 1 < runs.size(); ++at) {
    each.push_back(runs[at].span / runs[at].Lines());
    lines += runs[at].end - runs[at].first;
  }
  if (lines < each.size() * kFewestLines) return 0;
  const auto middle = each.begin() + static_cast<std::ptrdiff_t>(each.size() / 2);
  std::nth_element(each.begin(), middle, each.end());
  return *middle;
}

/// Spreads runs of equal times. A log may start and end within a run, whose few lines are then no
/// further apart than those of others.
void Spread(std::vector<double>& times) {
  if (std::adjacent_find(times.begin(), times.end()) == times.end()) return;
  std::vector<Run> runs = RunsOf(times);
  if (const double usual = SecondsOfWholeRuns(runs); usual > 0) {
    runs.back().span = std::min(runs.back().span, usual * runs.back().Lines());
    const double late = std::max(runs[0].span - usual * runs[0].Lines(), 0.0);
    runs[0].span -= late;
    for (std::size_t at = 1; at < runs.size(); ++at) runs[at].time -= late;
  }
  for (const Run& run : runs)
    for (std::size_t at = run.first; at < run.end; ++at)
      times[at] = run.time + run.span * static_cast<double>(at - run.first) / run.Lines();
}

}  // namespace

std::vector<double> TimesOfLines(std::span<const double> stamps, TimeForm form) {
  std::vector<double> times = Rising(stamps, form);
  Spread(times);
  return times;
}

}  // namespace tarnview
