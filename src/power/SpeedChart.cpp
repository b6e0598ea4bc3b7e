#include "power/SpeedChart.h"

#include <algorithm>
#include <cmath>

namespace tarnview {
namespace {

constexpr Colour kRunColour = 0x0000FF, kBenchmarkColour = 0xFF0000;
constexpr int kSolid = 1, kWide = 30;

ChartSeries SeriesOf(const std::vector<SpeedPoint>& speed, const char* name, Colour colour) {
  ChartSeries series;
  series.name = name;
  series.pen = {colour, kSolid, kWide};
  for (const SpeedPoint& point : speed) {
    series.x.push_back(point.seconds);
    series.y.push_back(point.speed);
  }
  return series;
}

/// The least step of 1, 2 or 5 times a power of ten that needs at most `most` divisions; 1 where
/// there is nothing to divide.
double RoundStep(double span, int most) {
  if (span == 0) return 1;
  double step = 1e-3;
  while (std::isfinite(step)) {
    for (const double factor : {1.0, 2.0, 5.0})
      if (span <= step * factor * most) return step * factor;
    step *= 10;
  }
  return span;
}

/// With the places that tell the steps of an axis apart.
const char* FormatOf(double step) {
  if (step >= 1) return "#######0";
  if (step >= 0.1) return "#######0.0";
  if (step >= 0.01) return "#######0.00";
  return "#######0.000";
}

/// From 0 or below to a round number that holds all values.
ChartAxis AxisOf(const std::vector<ChartSeries>& series, std::vector<double> ChartSeries::*values,
                 int most) {
  double low = 0, high = 0;
  for (const ChartSeries& one : series)
    for (const double value : one.*values) {
      low = std::min(low, value);
      high = std::max(high, value);
    }
  const double step = RoundStep(high - low, most);
  ChartAxis axis;
  axis.min = std::floor(low / step) * step;
  axis.max = std::max(std::ceil(high / step) * step, axis.min + step);
  axis.divisions = static_cast<int>(std::lround((axis.max - axis.min) / step));
  axis.format = FormatOf(step);
  return axis;
}

}  // namespace

std::vector<SpeedPoint> ShownSpeeds(const std::vector<SpeedPoint>& speed, double from, double to,
                                    double offset) {
  constexpr double kFastest =
      1e9;  // a file may hold any number; beyond it an axis would have no end
  std::vector<SpeedPoint> shown;
  for (const SpeedPoint& point : speed) {
    double converted = point.speed;
    if (from != to) converted = converted * from / to;
    if (converted > 0 && converted <= kFastest)
      shown.push_back({point.seconds + offset, converted});
  }
  return shown;
}

ChartDescription SpeedChart(const std::vector<SpeedPoint>& run,
                            const std::vector<SpeedPoint>* benchmark, bool imperial) {
  constexpr int kMostTimes = 12, kMostSpeeds = 10;
  ChartDescription chart;
  std::vector<ChartSeries> series;
  series.push_back(SeriesOf(run, "You", kRunColour));
  if (benchmark) series.push_back(SeriesOf(*benchmark, "Benchmark", kBenchmarkColour));
  chart.x = AxisOf(series, &ChartSeries::x, kMostTimes);
  chart.y = AxisOf(series, &ChartSeries::y, kMostSpeeds);
  chart.kind = Curves{std::move(series)};
  chart.x.title = "Time (Seconds)";
  if (imperial)
    chart.y.title = "Speed (MPH)";
  else
    chart.y.title = "Speed (KPH)";
  return chart;
}

}  // namespace tarnview
