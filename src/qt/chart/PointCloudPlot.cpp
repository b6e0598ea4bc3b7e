#include "qt/chart/PointCloudPlot.h"

#include <algorithm>
#include <cmath>

#include "qt/chart/MarkSprites.h"
#include "qt/chart/PointShades.h"

namespace tarnview {
namespace {

/// A mark takes up to 600 bytes of an SVG: above so many, the cloud of a file or a page is one
/// image within it.
constexpr std::size_t kMostSeparateMarks = 6000;
/// Pixels of that image to one of 1/96 inch: 192 to an inch, the sharpness of a fine screen.
constexpr double kImageScale = 2;
/// Four bytes each, so that the largest picture does not double its memory.
constexpr double kMostImagePixels = 1 << 26;

bool operator==(const PixelLine& a, const PixelLine& b) {
  return a.offset == b.offset && a.scale == b.scale;
}

bool Same(const PixelGrid& a, const PixelGrid& b) {
  return a.x == b.x && a.y == b.y && a.inside == b.inside;
}

/// Where colours tell something, a ball's gleam would be a false one.
PointShape ShapeOf(const PointCloud& cloud) {
  const bool shaded = cloud.density || !cloud.tint.empty();
  if (shaded && cloud.shape == PointShape::Ball) return PointShape::Circle;
  return cloud.shape;
}

/// An axis on pixels: the painter's own count at their middles, and so do these.
PixelLine LineOf(const QCPAxis& axis, double scale, int origin) {
  const double base = axis.coordToPixel(axis.range().lower);
  const double each = (axis.coordToPixel(axis.range().upper) - base) / axis.range().size();
  return {(base - axis.range().lower * each + 0.5) * scale - 0.5 - origin, each * scale};
}

}  // namespace

PointCloudPlot::PointCloudPlot(QCPAxis* x, QCPAxis* y, const PointCloud& cloud)
    : QCPAbstractPlottable(x, y), cloud_(cloud), marker_(ShapeOf(cloud), cloud.size) {
  setSelectable(QCP::stNone);
}

QCPRange PointCloudPlot::getKeyRange(bool& found, QCP::SignDomain) const {
  found = false;
  return {};
}

QCPRange PointCloudPlot::getValueRange(bool& found, QCP::SignDomain, const QCPRange&) const {
  found = false;
  return {};
}

int PointCloudPlot::ReachOfMark(double scale) const {
  return static_cast<int>(std::ceil(marker_.Diameter() * scale / 2)) + 1;
}

QRect PointCloudPlot::clipRect() const {
  const int reach = ReachOfMark(1);
  return mKeyAxis->axisRect()->rect().adjusted(-reach, -reach, reach, reach);
}

PixelGrid PointCloudPlot::GridOf(double scale, const QPoint& origin) const {
  const PixelLine x = LineOf(*mKeyAxis, scale, origin.x()),
                  y = LineOf(*mValueAxis, scale, origin.y());
  const auto pixel = [](const PixelLine& line, double value) {
    return static_cast<int>(line.PixelOf(value));
  };
  // Both ends of an axis are pixels of it, so there is one more than it is long; Y grows upwards.
  const QCPRange across = mKeyAxis->range(), up = mValueAxis->range();
  return {x, y,
          QRect(QPoint(pixel(x, across.lower), pixel(y, up.upper)),
                QPoint(pixel(x, across.upper), pixel(y, up.lower)))};
}

std::optional<int> PointCloudPlot::PointAt(const QPointF& pixel) {
  const PixelGrid grid = GridOf(1);
  if (!picking_ || !Same(grid, pickingGrid_)) {
    picking_.emplace(PlacePoints(cloud_, grid), grid.inside);
    pickingGrid_ = grid;
  }
  return picking_->Nearest(pixel.x(), pixel.y());
}

void PointCloudPlot::draw(QCPPainter* painter) {
  const bool vectors = painter->modes().testFlag(QCPPainter::pmVectorized);
  if (!vectors && DrawAsImage(*painter, painter->device()->devicePixelRatioF())) return;
  const PixelGrid grid = GridOf(1);
  std::vector<PlacedPoint> placed = PlacePoints(cloud_, grid);
  if (vectors && placed.size() > kMostSeparateMarks && DrawAsImage(*painter, kImageScale)) return;
  const std::vector<QColor> shades = Shade(placed, cloud_, grid, ReachOfMark(1), colours_);
  DrawEach(*painter, placed, shades);
}

void PointCloudPlot::DrawEach(QCPPainter& painter, const std::vector<PlacedPoint>& placed,
                              const std::vector<QColor>& shades) const {
  painter.setAntialiasing(true);
  for (const PlacedPoint& one : placed) {
    const auto point = static_cast<std::size_t>(one.point);
    marker_.Draw(painter, coordsToPixels(cloud_.x[point], cloud_.y[point]),
                 shades[static_cast<std::size_t>(one.shade)]);
  }
}

bool PointCloudPlot::DrawAsImage(QCPPainter& painter, double scale) const {
  const QRect room = clipRect();
  const QPoint origin(static_cast<int>(std::floor(room.left() * scale)),
                      static_cast<int>(std::floor(room.top() * scale)));
  const double width = std::ceil(room.width() * scale) + 1,
               height = std::ceil(room.height() * scale) + 1;
  if (width < 1 || height < 1 || width * height > kMostImagePixels) return false;
  QImage image(static_cast<int>(width), static_cast<int>(height),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return false;
  image.fill(0);
  const PixelGrid grid = GridOf(scale, origin);
  std::vector<PlacedPoint> placed = PlacePoints(cloud_, grid);
  const int reach = ReachOfMark(scale);
  MarkSprites(marker_, scale, Shade(placed, cloud_, grid, reach, colours_)).Stamp(placed, image);
  painter.setAntialiasing(false);
  // Painters of vectors count at the pixels' middles, those of screens at their corners.
  const double shift = painter.modes().testFlag(QCPPainter::pmVectorized) ? -0.5 : 0;
  painter.drawImage(
      QRectF(origin.x() / scale + shift, origin.y() / scale + shift, width / scale, height / scale),
      image);
  return true;
}

}  // namespace tarnview
