#include "qt/chart/Decimate.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnview {
namespace {

/// A run of points within one pixel column: the indices that its picture needs.
struct Run {
  std::size_t first, lowest, highest, last;
};

void Add(const Run& run, const std::vector<double>& x, const std::vector<double>& y, Polyline& to) {
  std::array<std::size_t, 4> kept{run.first, run.lowest, run.highest, run.last};
  std::sort(kept.begin(), kept.end());
  const auto end = std::unique(kept.begin(), kept.end());
  for (auto it = kept.begin(); it != end; ++it) {
    to.x.push_back(x[*it]);
    to.y.push_back(y[*it]);
  }
}

}  // namespace

Polyline Decimate(const std::vector<double>& x, const std::vector<double>& y, double min,
                  double max, int columns) {
  const std::size_t count = std::min(x.size(), y.size());
  if (columns < 1 || !(max > min) || count <= 2 * static_cast<std::size_t>(columns)) return {x, y};
  const double perColumn = columns / (max - min);
  const auto columnOf = [&](double at) {
    return std::clamp(std::floor((at - min) * perColumn), -1.0, columns + 0.0);
  };

  Polyline thin;
  Run run{0, 0, 0, 0};
  for (std::size_t i = 1; i < count; ++i) {
    if (columnOf(x[i]) != columnOf(x[run.first])) {
      Add(run, x, y, thin);
      run = {i, i, i, i};
      continue;
    }
    if (y[i] < y[run.lowest]) run.lowest = i;
    if (y[i] > y[run.highest]) run.highest = i;
    run.last = i;
  }
  if (count > 0) Add(run, x, y, thin);
  return thin;
}

}  // namespace tarnview
