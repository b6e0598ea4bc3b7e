#pragma once

#include <QPainter>
#include <QPainterPath>

#include "ui/ChartDescription.h"

namespace tarnview {

/// The mark of a point, about (0, 0), in one colour.
class Marker {
 public:
  /// `size` is 1 to 10; others count as the nearest.
  Marker(PointShape shape, int size);

  double Diameter() const {
    return diameter_;
  }  ///< pixels of 1/96 inch; no part lies farther out than half of it
  /// Draws without a pen; smooth edges are the painter's setting.
  void Draw(QPainter& painter, const QPointF& at, const QColor& colour) const;

 private:
  double diameter_;
  QPainterPath outline_;
  QPainterPath gleam_;  ///< of a ball
};

}  // namespace tarnview
