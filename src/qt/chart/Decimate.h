#pragma once

#include <vector>

namespace tarnview {

/// A polyline, point by point.
struct Polyline {
  std::vector<double> x;
  std::vector<double> y;
};

/// The polyline with no more points than so many pixel columns from `min` to `max` of X can show:
/// of each run of points in one column the first, lowest, highest and last stay, in their order. X
/// need not ascend. Points outside the columns are kept as one run at each side.
Polyline Decimate(const std::vector<double>& x, const std::vector<double>& y, double min,
                  double max, int columns);

}  // namespace tarnview
