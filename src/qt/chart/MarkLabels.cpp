#include "qt/chart/MarkLabels.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include "qt/Text.h"
#include "qt/chart/CurveLine.h"

namespace tarnview {
namespace {

/// Behind a text the curves shine through a little.
constexpr float kVeil = 0.8F;

/// The rectangle moved into another that is large enough for it.
QRectF Within(QRectF rect, const QRectF& bounds) {
  rect.moveLeft(std::clamp(rect.left(), bounds.left(),
                           std::max(bounds.left(), bounds.right() - rect.width())));
  rect.moveTop(std::clamp(rect.top(), bounds.top(),
                          std::max(bounds.top(), bounds.bottom() - rect.height())));
  return rect;
}

bool IsFree(const QRectF& room, const std::vector<QRectF>& taken) {
  return std::none_of(taken.begin(), taken.end(),
                      [&](const QRectF& other) { return other.intersects(room); });
}

}  // namespace

MarkLabels::MarkLabels(QCustomPlot& plot, const QString& layer, Beside beside)
    : QCPLayerable(&plot, layer), beside_(beside) {}

QPointF MarkLabels::PixelOf(const ChartMark& mark) const {
  return {mParentPlot->xAxis->coordToPixel(mark.x), mParentPlot->yAxis->coordToPixel(mark.y)};
}

double MarkLabels::CurvesUnder(const QRectF& room) const {
  double pixels = 0;
  if (beside_ == Beside::Right) return pixels;
  for (int i = 0; i < mParentPlot->plottableCount(); ++i)
    if (const auto* curve = dynamic_cast<const CurveLine*>(mParentPlot->plottable(i)))
      pixels += curve->LengthWithin(room);
  return pixels;
}

QRectF MarkLabels::RoomOf(const ChartMark& mark, const std::vector<QRectF>& taken) const {
  const QFontMetricsF metrics(font_);
  const double width = metrics.horizontalAdvance(ToQt(mark.text)) + metrics.height() / 2;
  const double height = metrics.height();
  const double gap = RingSize();
  const QPointF at = PixelOf(mark);
  const QRectF above(at.x() - width / 2, at.y() - gap - height, width, height);
  const QRectF below(at.x() - width / 2, at.y() + gap, width, height);
  const QRectF right(at.x() + gap, at.y() - height / 2, width, height);
  const QRectF left(at.x() - gap - width, at.y() - height / 2, width, height);
  const QRectF lifted = right.translated(0, -height), lowered = right.translated(0, height);
  const QRectF liftedLeft = left.translated(0, -height), loweredLeft = left.translated(0, height);
  using Places = std::array<QRectF, 8>;
  const Places places =
      beside_ == Beside::Above
          ? Places{above, below, right, left, lifted, liftedLeft, lowered, loweredLeft}
          : Places{right, left, lifted, lowered, above, below, liftedLeft, loweredLeft};
  const QRectF plot = mParentPlot->axisRect()->rect();
  std::optional<QRectF> best;
  double least = std::numeric_limits<double>::infinity();
  for (const QRectF& place : places) {
    if (!plot.contains(place) || !IsFree(place, taken)) continue;
    const double covered = CurvesUnder(place);
    if (covered < least) best = place;
    least = std::min(least, covered);
  }
  if (best) return *best;
  for (const QRectF& place : places)
    if (const QRectF moved = Within(place, plot); IsFree(moved, taken)) return moved;
  return Within(places[0], plot);
}

void MarkLabels::DrawText(QCPPainter& painter, const ChartMark& mark, const QRectF& room) const {
  QColor veil = colours_.backdrop;
  veil.setAlphaF(kVeil);
  painter.fillRect(room, veil);
  painter.setPen(QPen(colours_.text));
  painter.setFont(font_);
  painter.drawText(room, Qt::AlignCenter, ToQt(mark.text));
}

void MarkLabels::draw(QCPPainter* painter) {
  std::vector<QRectF> taken;
  const double size = RingSize();
  painter->setPen(QPen(colours_.text, 2));
  for (const ChartMark& mark : marks_) {
    if (!mark.ring) continue;
    QRectF ring(0, 0, size, size);
    ring.moveCenter(PixelOf(mark));
    painter->setBrush(ColourToQt(mark.colour));
    painter->drawEllipse(ring);
    taken.push_back(ring);
  }
  for (const ChartMark& mark : marks_) {
    if (mark.text.empty()) continue;
    const QRectF room = RoomOf(mark, taken);
    DrawText(*painter, mark, room);
    taken.push_back(room);
  }
}

}  // namespace tarnview
