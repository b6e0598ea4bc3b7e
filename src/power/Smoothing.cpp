#include "power/Smoothing.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {
namespace {

/// The mean of the points i - halfWidth to i + halfWidth that there are, at `rpm`.
PowerPoint MeanAround(const std::vector<PowerPoint>& points, std::int64_t i, std::int64_t halfWidth,
                      double rpm) {
  const std::int64_t last = static_cast<std::int64_t>(points.size()) - 1;
  const std::int64_t from = std::max<std::int64_t>(i - halfWidth, 0),
                     to = std::min(i + halfWidth, last);
  PowerPoint sum{rpm, 0, 0};
  for (std::int64_t at = from; at <= to; ++at) {
    sum.power += points[static_cast<std::size_t>(at)].power;
    sum.torque += points[static_cast<std::size_t>(at)].torque;
  }
  const auto count = static_cast<double>(to - from + 1);
  return {rpm, sum.power / count, sum.torque / count};
}

std::vector<PowerPoint> MeansAround(const std::vector<PowerPoint>& points, std::size_t count,
                                    std::int32_t halfWidth) {
  std::vector<PowerPoint> means(count);
  for (std::size_t i = 0; i < count; ++i) {
    double rpm = 0;
    if (i < points.size()) rpm = points[i].rpm;
    means[i] = MeanAround(points, static_cast<std::int64_t>(i), halfWidth, rpm);
  }
  return means;
}

}  // namespace

std::int32_t SecondHalfWidth(std::int32_t factor) {
  constexpr std::int32_t kWideFactor =
      3;  // from here on the second average takes in two points to either side
  const std::int32_t third = RoundToLong(factor / 3.0);
  if (factor >= kWideFactor) return std::max(third, 2);
  return third;
}

void Smooth(std::vector<PowerPoint>& points, std::int32_t factor) {
  if (factor < 1 || points.empty()) return;
  // The first average makes one entry more than there are points, and the second takes it in: kept
  // on purpose, since saved graphs were smoothed so.
  const auto first = MeansAround(points, points.size() + 1, factor);
  points = MeansAround(first, points.size(), SecondHalfWidth(factor));
}

}  // namespace tarnview
