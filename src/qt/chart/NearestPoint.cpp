#include "qt/chart/NearestPoint.h"

#include <algorithm>
#include <limits>

namespace tarnview {

std::optional<PointOfCurve> NearestPoint(const ChartDescription& chart,
                                         const std::function<double(double, double)>& distance) {
  std::optional<PointOfCurve> nearest;
  double best = std::numeric_limits<double>::infinity();
  for (std::size_t place = 0; place < chart.Series().size(); ++place) {
    const ChartSeries& series = chart.Series()[place];
    for (std::size_t i = 0; i < std::min(series.x.size(), series.y.size()); ++i) {
      const double away = distance(series.x[i], series.y[i]);
      if (!(away < best)) continue;
      best = away;
      nearest = PointOfCurve{static_cast<int>(place), static_cast<int>(i) + 1};
    }
  }
  return nearest;
}

}  // namespace tarnview
