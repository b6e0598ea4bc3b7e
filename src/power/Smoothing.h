#pragma once

#include <cstdint>
#include <vector>

#include "power/PowerCurves.h"

namespace tarnview {

/// Power and torque by two moving averages: one over `factor` points to either side and one over a
/// third of that. The rpm stay. A factor below 1 leaves the points as they are.
void Smooth(std::vector<PowerPoint>& points, std::int32_t factor);

/// Points to either side of the second average.
std::int32_t SecondHalfWidth(std::int32_t factor);

}  // namespace tarnview
