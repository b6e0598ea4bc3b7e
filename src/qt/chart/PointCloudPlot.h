#pragma once

#include <qcustomplot.h>

#include <optional>

#include "qt/chart/ChartColours.h"
#include "qt/chart/Markers.h"
#include "qt/chart/PointGrid.h"

namespace tarnview {

/// A mark for each point over two axes. What it costs is bounded by the pixels that there are, not
/// by the points.
class PointCloudPlot : public QCPAbstractPlottable {
 public:
  /// The cloud stays the caller's and must stay as it is while this is shown.
  PointCloudPlot(QCPAxis* x, QCPAxis* y, const PointCloud& cloud);

  void SetColours(const PaintedColours& colours) { colours_ = colours; }
  double MarkDiameter() const { return marker_.Diameter(); }
  /// The point under a pixel of the widget, from 0; nothing where none is near.
  std::optional<int> PointAt(const QPointF& pixel);

  double selectTest(const QPointF&, bool, QVariant*) const override { return -1; }
  QCPRange getKeyRange(bool& found, QCP::SignDomain) const override;
  QCPRange getValueRange(bool& found, QCP::SignDomain, const QCPRange&) const override;

 protected:
  /// Marks at the ends of the axes are shown whole.
  QRect clipRect() const override;
  void draw(QCPPainter* painter) override;
  void drawLegendIcon(QCPPainter*, const QRectF&) const override {}

 private:
  /// The axes on pixels that are `scale` to one of the painter's and counted from `origin`.
  PixelGrid GridOf(double scale, const QPoint& origin = {}) const;
  int ReachOfMark(double scale) const;
  void DrawEach(QCPPainter& painter, const std::vector<PlacedPoint>& placed,
                const std::vector<QColor>& shades) const;
  bool DrawAsImage(QCPPainter& painter, double scale) const;

  const PointCloud& cloud_;
  Marker marker_;
  PaintedColours colours_;
  std::optional<PointGrid> picking_;
  PixelGrid pickingGrid_;  ///< what `picking_` was made for
};

}  // namespace tarnview
