#pragma once

#include <QRect>
#include <cmath>
#include <vector>

#include "ui/ChartDescription.h"

namespace tarnview {

/// From an axis to pixels.
struct PixelLine {
  double offset = 0;
  double scale = 1;

  /// A whole number, or none for a value that is no number or endless.
  double PixelOf(double value) const { return std::rint(offset + value * scale); }
};

/// Where the values of a cloud fall on pixels. Points that do not fall `inside` are not shown.
struct PixelGrid {
  PixelLine x;
  PixelLine y;
  QRect inside;
};

/// A point that is drawn, on its pixel.
struct PlacedPoint {
  int x = 0;
  int y = 0;
  int point = 0;  ///< of the cloud, from 0
  int shade = 0;  ///< of a list of colours
};

/// The last point of each pixel that has any, in the order of the cloud: no more than the picture
/// has pixels.
std::vector<PlacedPoint> PlacePoints(const PointCloud& cloud, const PixelGrid& grid);

/// For each of `placed`, how many points of the whole cloud fall within `reach` pixels to each side
/// of it; at least 1.
std::vector<int> CountAround(const PointCloud& cloud, const PixelGrid& grid,
                             const std::vector<PlacedPoint>& placed, int reach);

}  // namespace tarnview
