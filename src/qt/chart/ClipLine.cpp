#include "qt/chart/ClipLine.h"

#include <QLineF>
#include <algorithm>
#include <array>
#include <optional>

namespace tarnview {
namespace {

/// The share of a segment within the rectangle, by the four sides one after the other (Liang and
/// Barsky, 1984).
std::optional<QLineF> ClipSegment(const QLineF& segment, const QRectF& to) {
  double enters = 0, leaves = 1;
  const std::array<std::array<double, 2>, 4> sides{{{-segment.dx(), segment.x1() - to.left()},
                                                    {segment.dx(), to.right() - segment.x1()},
                                                    {-segment.dy(), segment.y1() - to.top()},
                                                    {segment.dy(), to.bottom() - segment.y1()}}};
  for (const auto& [outward, room] : sides) {
    if (outward == 0 && room < 0) return std::nullopt;
    if (outward < 0) enters = std::max(enters, room / outward);
    if (outward > 0) leaves = std::min(leaves, room / outward);
  }
  if (enters > leaves) return std::nullopt;
  return QLineF(segment.pointAt(enters), leaves == 1 ? segment.p2() : segment.pointAt(leaves));
}

}  // namespace

std::vector<QPolygonF> ClipLine(const QPolygonF& line, const QRectF& to) {
  std::vector<QPolygonF> parts;
  for (qsizetype i = 0; i + 1 < line.size(); ++i) {
    const auto inside = ClipSegment(QLineF(line[i], line[i + 1]), to);
    if (!inside) continue;
    if (parts.empty() || parts.back().last() != inside->p1())
      parts.push_back(QPolygonF{inside->p1()});
    parts.back() << inside->p2();
  }
  return parts;
}

}  // namespace tarnview
