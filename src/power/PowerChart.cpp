#include "power/PowerChart.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "model/Column.h"
#include "power/UnitNames.h"

namespace tarnview {
namespace {

// As in the catalogue.
constexpr Colour kPowerColour = 0x0000FF, kTorqueColour = 0xFF0000;
constexpr int kSolid = 1, kDashed = 3, kWide = 30, kNarrow = 20;
constexpr const char* kWholeNumbers = "#######0";

std::string RpmText(double rpm) { return FixedText(rpm, 0) + " rpm"; }
std::string At(double rpm) { return " @ " + RpmText(rpm); }

ChartSeries SeriesOf(const std::vector<PowerPoint>& points, double PowerPoint::*value,
                     std::string name, const Pen& pen) {
  ChartSeries series;
  if (value == &PowerPoint::power)
    series.id = ItemOf(kPower);
  else
    series.id = ItemOf(kTorque);
  series.name = std::move(name);
  series.pen = pen;
  for (const PowerPoint& point : points) {
    series.x.push_back(point.rpm);
    series.y.push_back(point.*value);
  }
  return series;
}

void AddPair(std::vector<ChartSeries>& series, const std::vector<PowerPoint>& points,
             const PowerPeaks& peaks, const std::string& whose, bool imperial, int style,
             int width) {
  series.push_back(SeriesOf(points, &PowerPoint::power, PowerLegend(whose, peaks, imperial),
                            {kPowerColour, style, width}));
  series.push_back(SeriesOf(points, &PowerPoint::torque, TorqueLegend(whose, peaks, imperial),
                            {kTorqueColour, style, width}));
}

double Highest(const std::vector<ChartSeries>& series) {
  double highest = 0;
  for (const ChartSeries& one : series)
    for (const double y : one.y) highest = std::max(highest, y);
  return highest;
}

std::string PowerText(double power, bool imperial) {
  return FixedText(power, 1) + UnitNamesOf(imperial).power;
}

std::string TorqueText(double torque, bool imperial) {
  return FixedText(torque, 1) + UnitNamesOf(imperial).torque;
}

/// Each peak on its own curve; a curve that never rises above 0 has none.
std::vector<ChartMark> PeakMarks(const PowerPeaks& peaks, bool imperial) {
  std::vector<ChartMark> marks;
  if (peaks.power > 0)
    marks.push_back({peaks.powerRpm, peaks.power, PowerText(peaks.power, imperial), kPowerColour});
  if (peaks.torque > 0)
    marks.push_back(
        {peaks.torqueRpm, peaks.torque, TorqueText(peaks.torque, imperial), kTorqueColour});
  return marks;
}

Object FactsOf(const PowerCurves& run, double maxRpm) {
  const PowerPeaks& peaks = run.peaks;
  Object facts{{"power", peaks.power},         {"power_rpm", peaks.powerRpm},
               {"torque", peaks.torque},       {"torque_rpm", peaks.torqueRpm},
               {"top_speed", *peaks.topSpeed}, {"max_rpm", maxRpm}};
  List speed;
  for (const SpeedPoint& point : run.speed) speed.emplace_back(List{point.seconds, point.speed});
  return {{"peaks", std::move(facts)}, {"speed", std::move(speed)}};
}

}  // namespace

std::string PowerLegend(const std::string& whose, const PowerPeaks& peaks, bool imperial) {
  std::string text = whose + " Power (" + PowerText(peaks.power, imperial) + At(peaks.powerRpm);
  if (peaks.topSpeed) text += ", Vmax " + NumberText(*peaks.topSpeed) + UnitNamesOf(imperial).speed;
  return text + ")";
}

std::string TorqueLegend(const std::string& whose, const PowerPeaks& peaks, bool imperial) {
  return whose + " Torque (" + TorqueText(peaks.torque, imperial) + At(peaks.torqueRpm) + ")";
}

std::string ReadingText(const PowerPoint& point, bool imperial) {
  return RpmText(point.rpm) + ": " + PowerText(point.power, imperial) + ", " +
         TorqueText(point.torque, imperial);
}

std::vector<ChartMark> ReadingMarks(const PowerPoint& point, bool imperial) {
  return {{point.rpm, point.power, PowerText(point.power, imperial), kPowerColour},
          {point.rpm, point.torque, TorqueText(point.torque, imperial), kTorqueColour},
          {point.rpm, 0, RpmText(point.rpm), 0, /*ring=*/false}};
}

ChartAxis RpmAxis(double maxRpm) {
  constexpr double kFirst = 1000;
  double end = 10000;
  if (maxRpm <= 8999) end = 9000;
  if (maxRpm <= 7999) end = 8000;
  constexpr int kMinorDivisions = 2;
  return {kFirst,        end,   static_cast<int>((end - kFirst) / 1000),
          kWholeNumbers, "RPM", kMinorDivisions};
}

ChartAxis PowerAxis(double highest) {
  double step = 100;
  if (highest <= 500) step = 50;
  if (highest <= 300) step = 20;
  const double divisions = std::floor(std::max(highest, 0.0) / step) + 1;
  // Of a benchmark that nobody measured the divisions would be too many for an int.
  constexpr double kMostDivisions = 1e9;
  return {0, step * divisions, static_cast<int>(std::min(divisions, kMostDivisions)),
          kWholeNumbers};
}

ChartDescription PowerChart(const PowerCurves& run,
                            const std::optional<ShownBenchmark>& benchmark) {
  ChartDescription chart;
  std::vector<ChartSeries> series;
  AddPair(series, run.points, run.peaks, "Your", run.imperial, kSolid, kWide);
  double maxRpm = run.peaks.maxRpm;
  if (benchmark) {
    AddPair(series, benchmark->points, benchmark->peaks, "Benchmark", run.imperial, kDashed,
            kNarrow);
    maxRpm = std::max(maxRpm, benchmark->peaks.maxRpm);
  }
  chart.x = RpmAxis(maxRpm);
  chart.y = PowerAxis(Highest(series));
  chart.kind = Curves{std::move(series)};
  chart.marks = PeakMarks(run.peaks, run.imperial);
  chart.facts = FactsOf(run, maxRpm);
  return chart;
}

}  // namespace tarnview
