#pragma once

#include <functional>
#include <optional>

#include "ui/ChartDescription.h"

namespace tarnview {

struct PointOfCurve {
  int place = 0;  ///< of the curve, from 0
  int point = 0;  ///< from 1
};

/// The point that lies nearest by `distance(x, y)`; of equally near ones the first. Nothing for a
/// chart without points.
std::optional<PointOfCurve> NearestPoint(const ChartDescription& chart,
                                         const std::function<double(double, double)>& distance);

}  // namespace tarnview
