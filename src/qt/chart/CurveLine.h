#pragma once

#include <qcustomplot.h>

#include "qt/chart/Decimate.h"

namespace tarnview {

/// A polyline over two axes. The library's own curve hands the painter one path of thousands of
/// wide, overlapping segments, which takes seconds; this one hands it short pieces.
class CurveLine : public QCPCurve {
 public:
  CurveLine(QCPAxis* x, QCPAxis* y) : QCPCurve(x, y) {}

  void SetLine(Polyline line) { line_ = std::move(line); }
  /// Pixels of the curve within a rectangle of them, along the curve.
  double LengthWithin(const QRectF& rect) const;

 protected:
  void draw(QCPPainter* painter) override;
  void drawLegendIcon(QCPPainter* painter, const QRectF& rect) const override;

 private:
  /// The stretches between the gaps, in pixels.
  std::vector<QPolygonF> Runs() const;
  void DrawRun(QCPPainter& painter, const QPolygonF& run) const;
  QPointF ToPixels(std::size_t point) const;

  Polyline line_;
};

}  // namespace tarnview
