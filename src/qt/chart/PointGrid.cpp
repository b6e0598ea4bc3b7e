#include "qt/chart/PointGrid.h"

#include <algorithm>
#include <cmath>

namespace tarnview {

PointGrid::PointGrid(std::vector<PlacedPoint> points, const QRect& inside)
    : inside_(inside),
      columns_(std::max(inside.width(), 0) / kReach + 1),
      rows_(std::max(inside.height(), 0) / kReach + 1),
      starts_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)),
      points_(points.size()) {
  const auto squareOf = [&](const PlacedPoint& one) {
    return SquareOf((one.x - inside_.left()) / kReach, (one.y - inside_.top()) / kReach);
  };
  for (const PlacedPoint& one : points) ++starts_[squareOf(one)];
  for (std::size_t i = 1; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
  // So far where each square ends; filled from behind, it sinks to where the square begins.
  for (auto one = points.rbegin(); one != points.rend(); ++one)
    points_[--starts_[squareOf(*one)]] = *one;
  starts_.push_back(points_.size());
}

std::size_t PointGrid::SquareOf(int column, int row) const {
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
         static_cast<std::size_t>(column);
}

std::optional<int> PointGrid::Nearest(double x, double y) const {
  if (!std::isfinite(x) || !std::isfinite(y)) return std::nullopt;
  const auto square = [](double from, int count) {
    return static_cast<int>(std::clamp(std::floor(from / kReach), -1.0, count + 0.0));
  };
  const int column = square(x - inside_.left(), columns_), row = square(y - inside_.top(), rows_);
  std::optional<int> nearest;
  double best = kReach * kReach;
  for (int r = std::max(row - 1, 0); r <= std::min(row + 1, rows_ - 1); ++r)
    for (int c = std::max(column - 1, 0); c <= std::min(column + 1, columns_ - 1); ++c) {
      const std::size_t here = SquareOf(c, r);
      for (std::size_t i = starts_[here]; i < starts_[here + 1]; ++i) {
        const double dx = points_[i].x - x, dy = points_[i].y - y;
        const double away = dx * dx + dy * dy;
        if (away > best || (nearest && away == best && points_[i].point < *nearest)) continue;
        best = away;
        nearest = points_[i].point;
      }
    }
  return nearest;
}

}  // namespace tarnview
