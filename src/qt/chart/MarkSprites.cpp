#include "qt/chart/MarkSprites.h"

#include <algorithm>
#include <cmath>

namespace tarnview {
namespace {

/// One premultiplied pixel over another (Porter and Duff, 1984); the two halves of a word are
/// worked on together.
QRgb Over(QRgb above, QRgb below) {
  const unsigned rest = 255U - static_cast<unsigned>(qAlpha(above));
  const auto share = [rest](QRgb pair) {
    const QRgb product = pair * rest + 0x800080;
    return (product + ((product >> 8) & 0xFF00FF)) >> 8 & 0xFF00FF;
  };
  return above + share(below & 0xFF00FF) + (share(below >> 8 & 0xFF00FF) << 8);
}

void StampOne(const QImage& sprite, int left, int top, QImage& onto) {
  const int firstX = std::max(0, -left), lastX = std::min(sprite.width(), onto.width() - left);
  const int firstY = std::max(0, -top), lastY = std::min(sprite.height(), onto.height() - top);
  const auto width = static_cast<std::size_t>(onto.bytesPerLine()) / sizeof(QRgb);
  auto* const pixels = reinterpret_cast<QRgb*>(onto.bits());
  for (int y = firstY; y < lastY; ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(sprite.constScanLine(y));
    QRgb* to = pixels + static_cast<std::size_t>(top + y) * width;
    for (int x = firstX; x < lastX; ++x) {
      const int alpha = qAlpha(from[x]);
      if (alpha == 255)
        to[left + x] = from[x];
      else if (alpha != 0)
        to[left + x] = Over(from[x], to[left + x]);
    }
  }
}

}  // namespace

MarkSprites::MarkSprites(const Marker& marker, double scale, std::vector<QColor> colours)
    : marker_(marker),
      scale_(scale),
      reach_(static_cast<int>(std::ceil(marker.Diameter() * scale / 2 + 0.5)) - 1),
      colours_(std::move(colours)),
      sprites_(colours_.size()) {}

const QImage& MarkSprites::SpriteOf(int shade) {
  const auto index = std::min(static_cast<std::size_t>(shade), sprites_.size() - 1);
  QImage& sprite = sprites_[index];
  if (!sprite.isNull()) return sprite;
  const int side = 2 * reach_ + 1;
  sprite = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
  sprite.fill(0);
  QPainter painter(&sprite);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(side / 2.0, side / 2.0);
  painter.scale(scale_, scale_);
  marker_.Draw(painter, QPointF(), colours_[index]);
  return sprite;
}

void MarkSprites::Stamp(const std::vector<PlacedPoint>& points, QImage& onto) {
  for (const PlacedPoint& one : points)
    StampOne(SpriteOf(one.shade), one.x - reach_, one.y - reach_, onto);
}

}  // namespace tarnview
