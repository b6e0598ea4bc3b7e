#pragma once

#include <vector>

#include "power/PowerCurves.h"
#include "ui/ChartDescription.h"

namespace tarnview {

/// The points of a series with a speed above 0, in a unit of so many metres per second, each so
/// many seconds later. `from` is the unit of the series.
std::vector<SpeedPoint> ShownSpeeds(const std::vector<SpeedPoint>& speed, double from, double to,
                                    double offset = 0);

/// Speed in mph or km/h over time: "You" and, where there is one, "Benchmark".
ChartDescription SpeedChart(const std::vector<SpeedPoint>& run,
                            const std::vector<SpeedPoint>* benchmark, bool imperial);

}  // namespace tarnview
