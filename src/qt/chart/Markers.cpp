#include "qt/chart/Markers.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "qt/chart/ChartColours.h"

namespace tarnview {
namespace {

constexpr int kSizes = 10;
/// Diameters of the circle around a mark, in pixels. A disc in it measures 2.5, the least that is
/// seen well, to 13.3: ten times 20 twips at 96 pixels to an inch.
constexpr double kSmallest = 2.8;
constexpr double kLargest = 15;
/// A disc and a square fill the eye more than a star of their height.
constexpr double kDisc = 0.89, kSquare = 0.7;
/// Bars are as thick as this share of the mark, and no thinner than a pixel.
constexpr double kBar = 0.26;
/// How far out a star's inner corners stand, against the outer ones.
constexpr double kStarInside = 0.42;
constexpr double kGleamLight = 0.62;
/// Below this diameter a gleam is no gleam but another colour.
constexpr double kLeastGleam = 5.5;

double DiameterOf(int size) {
  return kSmallest + (kLargest - kSmallest) * (std::clamp(size, 1, kSizes) - 1) / (kSizes - 1);
}

// Each outline is made within the circle of radius `r`; `b` is half of a bar.

QPainterPath Polygon(const QPolygonF& corners) {
  QPainterPath path;
  path.addPolygon(corners);
  path.closeSubpath();
  return path;
}

QPainterPath Disc(double r, double) {
  QPainterPath path;
  path.addEllipse(QPointF(), kDisc * r, kDisc * r);
  return path;
}

QPainterPath Dash(double r, double b) { return Polygon({{-r, -b}, {r, -b}, {r, b}, {-r, b}}); }

QPainterPath Diamond(double r, double) { return Polygon({{0, -r}, {r, 0}, {0, r}, {-r, 0}}); }

QPainterPath UpTriangle(double r, double) {
  return Polygon({{0, -r}, {0.87 * r, 0.5 * r}, {-0.87 * r, 0.5 * r}});
}

QPainterPath DownTriangle(double r, double b) {
  return QTransform::fromScale(1, -1).map(UpTriangle(r, b));
}

QPainterPath Plus(double r, double b) {
  return Polygon({{-b, -r},
                  {b, -r},
                  {b, -b},
                  {r, -b},
                  {r, b},
                  {b, b},
                  {b, r},
                  {-b, r},
                  {-b, b},
                  {-r, b},
                  {-r, -b},
                  {-b, -b}});
}

QPainterPath Cross(double r, double b) { return QTransform().rotate(45).map(Plus(r, b)); }

QPainterPath Square(double r, double) {
  const double side = kSquare * r;
  return Polygon({{-side, -side}, {side, -side}, {side, side}, {-side, side}});
}

QPainterPath Star(double r, double) {
  QPolygonF corners;
  for (int i = 0; i < 10; ++i) {
    const double turn = i * std::numbers::pi / 5;
    const double out = i % 2 == 0 ? r : r * kStarInside;
    corners << QPointF(out * std::sin(turn), -out * std::cos(turn));
  }
  return Polygon(corners);
}

/// In the order of PointShape.
constexpr QPainterPath (*kOutlines[])(double r, double b) = {
    Disc, Disc, Dash, Diamond, DownTriangle, Plus, Square, Star, UpTriangle, Cross};

QPainterPath OutlineOf(PointShape shape, double diameter) {
  const auto last = static_cast<int>(std::size(kOutlines)) - 1;
  const double bar = std::max(kBar * diameter, 1.0);
  return kOutlines[std::clamp(static_cast<int>(shape), 0, last)](diameter / 2, bar / 2);
}

}  // namespace

Marker::Marker(PointShape shape, int size)
    : diameter_(DiameterOf(size)), outline_(OutlineOf(shape, diameter_)) {
  outline_.setFillRule(Qt::WindingFill);
  const double away = -0.13 * diameter_, radius = 0.15 * diameter_;
  if (shape == PointShape::Ball && diameter_ >= kLeastGleam)
    gleam_.addEllipse(QPointF(away, away), radius, radius);
}

void Marker::Draw(QPainter& painter, const QPointF& at, const QColor& colour) const {
  painter.fillPath(outline_.translated(at), colour);
  if (!gleam_.isEmpty())
    painter.fillPath(gleam_.translated(at), Mix(colour, Qt::white, kGleamLight));
}

}  // namespace tarnview
