#include "qt/chart/CurveLine.h"

#include <algorithm>
#include <cmath>

#include "qt/chart/ClipLine.h"

namespace tarnview {
namespace {

/// Points that go to the painter at a time on screens and pixel pictures: measured, more points
/// cost more for each.
constexpr qsizetype kPiece = 6;
/// Points for each pixel column from which on a curve is a band.
constexpr double kDense = 1.5;
/// Pixels from the origin beyond which the painter's own arithmetic fails.
constexpr double kFarAway = 1e5;

void DrawInPieces(QPainter& painter, const QPolygonF& points) {
  // Each piece begins where the one before ended.
  for (qsizetype first = 0; first + 1 < points.size() || first == 0; first += kPiece - 1) {
    const auto count = std::min(kPiece, points.size() - first);
    if (count > 0) painter.drawPolyline(points.constData() + first, static_cast<int>(count));
  }
}

}  // namespace

QPointF CurveLine::ToPixels(std::size_t point) const {
  const QPointF at = coordsToPixels(line_.x[point], line_.y[point]);
  return QPointF(std::clamp(at.x(), -kFarAway, kFarAway), std::clamp(at.y(), -kFarAway, kFarAway));
}

void CurveLine::draw(QCPPainter* painter) {
  applyDefaultAntialiasingHint(painter);
  painter->setPen(mPen);
  painter->setBrush(Qt::NoBrush);
  // A band of lines on every pixel column looks the same either way, and smoothing it takes most of
  // the time.
  const bool vectors = painter->modes().testFlag(QCPPainter::pmVectorized);
  if (!vectors && static_cast<double>(line_.x.size()) > kDense * clipRect().width())
    painter->setAntialiasing(false);
  for (const QPolygonF& run : Runs()) DrawRun(*painter, run);
}

std::vector<QPolygonF> CurveLine::Runs() const {
  std::vector<QPolygonF> runs(1);
  for (std::size_t i = 0; i < line_.x.size(); ++i) {
    // A value that is not there leaves a gap.
    if (std::isfinite(line_.x[i]) && std::isfinite(line_.y[i]))
      runs.back() << ToPixels(i);
    else if (!runs.back().isEmpty())
      runs.emplace_back();
  }
  return runs;
}

double CurveLine::LengthWithin(const QRectF& rect) const {
  double length = 0;
  for (const QPolygonF& run : Runs())
    for (const QPolygonF& part : ClipLine(run, rect))
      for (qsizetype i = 0; i + 1 < part.size(); ++i)
        length += QLineF(part[i], part[i + 1]).length();
  return length;
}

void CurveLine::DrawRun(QCPPainter& painter, const QPolygonF& run) const {
  if (!painter.modes().testFlag(QCPPainter::pmVectorized)) return DrawInPieces(painter, run);
  for (const QPolygonF& part : ClipLine(run, clipRect())) painter.drawPolyline(part);
}

void CurveLine::drawLegendIcon(QCPPainter* painter, const QRectF& rect) const {
  applyDefaultAntialiasingHint(painter);
  painter->setPen(mPen);
  const double middle = rect.center().y();
  painter->drawLine(QPointF(rect.left(), middle), QPointF(rect.right(), middle));
}

}  // namespace tarnview
