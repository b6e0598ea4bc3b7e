#pragma once

#include <optional>
#include <string>
#include <vector>

#include "power/PowerCurves.h"
#include "ui/ChartDescription.h"

namespace tarnview {

/// A saved graph that stands beside a run: its points in the run's units, with their peaks.
struct ShownBenchmark {
  std::vector<PowerPoint> points;
  PowerPeaks peaks;
};

/// "Your Power (141.2 hp @ 6480 rpm, Vmax 128.1 mph)"; without a top speed the text ends behind
/// "rpm".
std::string PowerLegend(const std::string& whose, const PowerPeaks& peaks, bool imperial);
/// "Your Torque (131.0 lbft @ 4200 rpm)"
std::string TorqueLegend(const std::string& whose, const PowerPeaks& peaks, bool imperial);

/// "4235 rpm: 118.3 hp, 146.7 lbft"
std::string ReadingText(const PowerPoint& point, bool imperial);
/// The same where a line at the point's rpm meets the curves and the RPM axis.
std::vector<ChartMark> ReadingMarks(const PowerPoint& point, bool imperial);

/// 1000 rpm to 8000, 9000 or 10000.
ChartAxis RpmAxis(double maxRpm);
/// From 0 to the next round number above the highest value.
ChartAxis PowerAxis(double highest);

/// Power and torque over rpm, and the benchmark's where there is one. The run's peaks are marked on
/// their curves; its facts are the peaks and the run's speeds.
ChartDescription PowerChart(const PowerCurves& run, const std::optional<ShownBenchmark>& benchmark);

}  // namespace tarnview
