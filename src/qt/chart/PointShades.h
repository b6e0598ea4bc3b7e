#pragma once

#include <QColor>
#include <vector>

#include "qt/chart/ChartColours.h"
#include "qt/chart/PlacedPoints.h"

namespace tarnview {

/// `share` (0 to 1) of the way through the heat colours.
QColor HeatColour(double share);

/// Sets the shade of each point and tells the colours of the shades: one alone, by the third item,
/// or (without one) by how many points fall within `reach` pixels. Dense points come last in the
/// list, to lie on top; otherwise the order stays.
std::vector<QColor> Shade(std::vector<PlacedPoint>& placed, const PointCloud& cloud,
                          const PixelGrid& grid, int reach, const PaintedColours& colours);

}  // namespace tarnview
