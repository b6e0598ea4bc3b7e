#pragma once

#include <string>
#include <vector>

#include "ui/ChartAxis.h"

namespace tarnview {

/// From where a surface is looked at. Degrees from 0 to 359.
struct SurfaceView {
  int rotation = 0;  ///< turned about the upright axis
  /// 0 looks along the floor from the front, 90 straight down, 180 along the floor from behind.
  /// Nobody wants to see a map from below: beyond 180 the eye goes back the way it came.
  int elevation = 0;
  double zoom = 1;  ///< 0.5 to 4

  friend bool operator==(const SurfaceView&, const SurfaceView&) = default;
};

inline constexpr double kLeastZoom = 0.5;
inline constexpr double kMostZoom = 4;

/// A table of values as a landscape. Row 1 stands at the back and the last row at the front,
/// columns from left to right. `locked` is as long as `values`, or empty.
struct Surface {
  std::string title;
  std::string subtitle;
  std::vector<std::string> rows;     ///< labels
  std::vector<std::string> columns;  ///< labels
  std::string rowTitle;
  std::string columnTitle;
  std::vector<double> values;  ///< row by row
  std::vector<bool> locked;    ///< cells that are no part of the map: drawn, and marked
  ChartAxis height;            ///< of the values
  SurfaceView view;

  bool IsLocked(std::size_t row, std::size_t column) const {
    return !locked.empty() && locked[row * columns.size() + column];
  }
  double At(std::size_t row, std::size_t column) const {
    return values[row * columns.size() + column];
  }
};

}  // namespace tarnview
