#pragma once

#include <optional>
#include <vector>

#include "qt/chart/PlacedPoints.h"

namespace tarnview {

/// Finds the point under the pointer among those that are drawn, by looking at the squares around
/// it alone.
class PointGrid {
 public:
  /// How far from a point, in pixels, the pointer still means it.
  static constexpr int kReach = 8;

  PointGrid(std::vector<PlacedPoint> points, const QRect& inside);

  /// The point nearest to the pixel, of equally near ones the last, which lies on top; from 0.
  std::optional<int> Nearest(double x, double y) const;

 private:
  std::size_t SquareOf(int column, int row) const;

  QRect inside_;
  int columns_;
  int rows_;
  std::vector<std::size_t>
      starts_;  ///< where the points of each square begin, row by row, and the end of all
  std::vector<PlacedPoint> points_;  ///< square by square
};

}  // namespace tarnview
