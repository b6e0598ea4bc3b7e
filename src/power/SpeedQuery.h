#pragma once

#include <string>
#include <vector>

#include "power/PowerCurves.h"

namespace tarnview {

/// Seconds that a series, in the order of time, took from one of its speeds to the other (from <=
/// to): "04.25". "N/A" where it does not hold both. `from` and `to` are taken as whole numbers for
/// that check alone.
std::string TimeBetween(const std::vector<SpeedPoint>& series, double from, double to);

}  // namespace tarnview
