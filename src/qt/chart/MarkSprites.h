#pragma once

#include <QImage>
#include <vector>

#include "qt/chart/Markers.h"
#include "qt/chart/PlacedPoints.h"

namespace tarnview {

/// Marks drawn once for each colour and stamped from then on.
class MarkSprites {
 public:
  /// `scale`: pixels of the image to one of 1/96 inch.
  MarkSprites(const Marker& marker, double scale, std::vector<QColor> colours);

  /// Pixels from a mark's own to the edge of its sprite.
  int Reach() const { return reach_; }
  /// Lays the marks over an image (ARGB32, premultiplied) in their order; what falls outside of it
  /// is cut off.
  void Stamp(const std::vector<PlacedPoint>& points, QImage& onto);

 private:
  const QImage& SpriteOf(int shade);

  const Marker& marker_;
  double scale_;
  int reach_;
  std::vector<QColor> colours_;
  std::vector<QImage> sprites_;  ///< one for each colour, null until it is asked for
};

}  // namespace tarnview
