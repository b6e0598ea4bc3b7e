#pragma once

#include <qcustomplot.h>

#include <vector>

#include "qt/chart/ChartColours.h"
#include "ui/ChartDescription.h"

namespace tarnview {

/// Marks over the curves of a chart: a ring at each point and its text beside it, where no earlier
/// text stands; a text that stays also keeps off the curves.
class MarkLabels : public QCPLayerable {
 public:
  /// Where a text stands if there is room.
  enum class Beside { Above, Right };
  MarkLabels(QCustomPlot& plot, const QString& layer, Beside beside);

  void SetMarks(std::vector<ChartMark> marks) { marks_ = std::move(marks); }
  void SetColours(const PaintedColours& colours) { colours_ = colours; }
  void SetFont(const QFont& font) { font_ = font; }

 protected:
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override {
    painter->setAntialiasing(true);
  }
  void draw(QCPPainter* painter) override;

 private:
  double RingSize() const { return QFontMetricsF(font_).height() / 2; }
  QPointF PixelOf(const ChartMark& mark) const;
  /// Pixels of curves that a text would cover. At the pointer it may cover any: it would jump about
  /// otherwise.
  double CurvesUnder(const QRectF& room) const;
  /// The room of a text: in the graph, and free of `taken` where any of its places is; of those the
  /// one that covers the least of the curves.
  QRectF RoomOf(const ChartMark& mark, const std::vector<QRectF>& taken) const;
  void DrawText(QCPPainter& painter, const ChartMark& mark, const QRectF& room) const;

  const Beside beside_;
  std::vector<ChartMark> marks_;
  PaintedColours colours_;
  QFont font_;
};

}  // namespace tarnview
