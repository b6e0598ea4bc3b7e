#include "power/PowerCurves.h"

#include <algorithm>

#include "base/Units.h"
#include "model/ConversionTables.h"

namespace tarnview {
namespace {

constexpr double kKilowattsPerHorsepower = kWattsPerHorsepower / 1000;

PowerPoint ToMetric(const PowerPoint& p) {
  return {p.rpm, p.power * kKilowattsPerHorsepower, p.torque / kFootPoundsPerNm};
}
PowerPoint ToImperial(const PowerPoint& p) {
  return {p.rpm, p.power / kKilowattsPerHorsepower, p.torque * kFootPoundsPerNm};
}

double Mean(double own, const PowerPoint& a, const PowerPoint& b, double PowerPoint::*value,
            double rpm) {
  return (own + LinearInterpolate(a.rpm, b.rpm, rpm, a.*value, b.*value, /*clamp=*/true)) / 2;
}

}  // namespace

PowerPeaks PeaksOf(const std::vector<PowerPoint>& points) {
  PowerPeaks peaks;
  for (const PowerPoint& p : points) {
    if (p.power > peaks.power) {
      peaks.power = p.power;
      peaks.powerRpm = p.rpm;
    }
    if (p.torque > peaks.torque) {
      peaks.torque = p.torque;
      peaks.torqueRpm = p.rpm;
    }
    peaks.maxRpm = std::max(peaks.maxRpm, p.rpm);
  }
  return peaks;
}

std::vector<PowerPoint> InUnits(std::vector<PowerPoint> points, bool areImperial, bool toImperial) {
  if (areImperial != toImperial)
    std::transform(points.begin(), points.end(), points.begin(),
                   toImperial ? ToImperial : ToMetric);
  return points;
}

void AverageWith(std::vector<PowerPoint>& points, const std::vector<PowerPoint>& benchmark) {
  for (PowerPoint& point : points) {
    const double rpm = point.rpm;
    const auto pair = std::adjacent_find(
        benchmark.begin(), benchmark.end(),
        [rpm](const auto& a, const auto& b) { return a.rpm <= rpm && b.rpm >= rpm; });
    if (rpm <= 0 || pair == benchmark.end()) continue;
    const PowerPoint &a = *pair, &b = *(pair + 1);
    point.power = Mean(point.power, a, b, &PowerPoint::power, rpm);
    point.torque = Mean(point.torque, a, b, &PowerPoint::torque, rpm);
  }
}

}  // namespace tarnview
