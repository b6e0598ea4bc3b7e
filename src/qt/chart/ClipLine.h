#pragma once

#include <QPolygonF>
#include <QRectF>
#include <vector>

namespace tarnview {

/// The parts of a polyline that lie within a rectangle, for files that know no clipping.
std::vector<QPolygonF> ClipLine(const QPolygonF& line, const QRectF& to);

}  // namespace tarnview
