#include "power/PowerRun.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/Units.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "power/Drag.h"
#include "power/DriveWheel.h"
#include "power/Smoothing.h"

namespace tarnview {
namespace {

/// What stays the same through a run: metres, kilograms, seconds, watts.
struct Constants {
  double speedPerRpm = 0;
  double mass = 0;
  double drag = 0;
  double loss = 1;  ///< what the wheels' power is multiplied by for the drive train's loss
  double dyno = 1;
};

double PerCentMore(std::int32_t perCent) { return (perCent + 100.0) / 100; }

Constants ConstantsOf(const PowerRun& run) {
  const double unit = run.car.blnImperialUnits ? kKilogramsPerPound : 1;
  return {SpeedPerRpm(run.car, run.gear), static_cast<double>(TotalWeight(run)) * unit,
          DragOf(run.car, run.air), PerCentMore(GearLoss(run.car, run.gear)),
          PerCentMore(run.car.lngDynoCorrectionFactor)};
}

const char* TyreField(std::int32_t method) {
  switch (method) {
    case kTyreSize:
      return "Tyre Size";
    case kTyreRevolutions:
      return "Tyre RPM";
    default:
      return "Drive Wheel Radius";
  }
}

/// The field of a car that leaves nothing to reckon with; empty if there is none.
std::string FaultOf(const PowerRun& run) {
  constexpr std::array kRatioFields{"1st Gear Ratio", "2nd Gear Ratio", "3rd Gear Ratio",
                                    "4th Gear Ratio", "5th Gear Ratio", "6th Gear Ratio"};
  const clsCarDef& car = run.car;
  const double circumference = DriveWheelCircumference(car);
  if (!(GearRatio(car, run.gear) > 0)) return kRatioFields[static_cast<std::size_t>(run.gear)];
  if (!(car.dblDiffRatio > 0)) return "Diff Ratio";
  if (!(circumference > 0) || !std::isfinite(circumference))
    return TyreField(car.lngTyreSizeMethod);
  if (TotalWeight(run) <= 0) return "Car Weight";
  const double drag = DragOf(car, run.air);
  if (std::isfinite(drag) && drag != 0) return "";
  if (car.blnUseCD && run.air.pressure == 0) return "Atmospheric Pressure";
  if (car.blnUseCD) return "Drag Coefficient";
  if (car.lngAeroLossSpeed == 0) return "Set Point Speed";
  return "Set Point Power";
}

/// Watts that took the car from one speed to the other within `dt`, at the engine.
double PowerOf(const Constants& c, double speed, double previous, double dt) {
  const double a = (speed - previous) / dt;
  const double force = a * c.mass;
  const double distance = a * 0.5 * dt * dt + previous * dt;
  const double mean = (speed + previous) / 2;
  const double wheels = force * distance / dt + mean * mean * mean * c.drag;
  return wheels * c.loss * c.dyno;
}

PowerPoint PointOf(double watts, double rpm, bool imperial) {
  const double horsepower = watts / kWattsPerHorsepower;
  const double newtonMetres = horsepower * kRpmFootPoundsPerHorsepower / rpm / kFootPoundsPerNm;
  if (imperial) return {rpm, horsepower, newtonMetres * kFootPoundsPerNm};
  return {rpm, watts / 1000, newtonMetres};
}

/// A sample behind one that stands still, or no later than it, gives no point, and the next
/// interval starts from it; its speed stands until the next sample's takes the place, so that of a
/// last one stays. The time of a point is its number times the latest interval, not the sum of the
/// intervals: kept on purpose.
void TakePoints(const PowerRun& run, PowerCurves& curves) {
  const Constants constants = ConstantsOf(run);
  for (std::size_t i = 1; i < run.samples.size(); ++i) {
    const RunSample &now = run.samples[i], &before = run.samples[i - 1];
    const double dt = now.seconds - before.seconds;
    const double speed = now.rpm * constants.speedPerRpm,
                 previous = before.rpm * constants.speedPerRpm;
    curves.speed.resize(curves.points.size());
    curves.speed.push_back({static_cast<double>(curves.points.size()) * dt, speed});
    if (previous <= 0 || dt <= 0) continue;
    const double watts = PowerOf(constants, speed, previous, dt);
    curves.points.push_back(PointOf(watts, (now.rpm + before.rpm) / 2, run.imperial));
  }
}

bool AllFinite(const PowerCurves& curves) {
  const auto finite = [](const PowerPoint& p) {
    return std::isfinite(p.rpm) && std::isfinite(p.power) && std::isfinite(p.torque);
  };
  const auto known = [](const SpeedPoint& p) { return std::isfinite(p.speed + p.seconds); };
  return std::all_of(curves.points.begin(), curves.points.end(), finite) &&
         std::all_of(curves.speed.begin(), curves.speed.end(), known) &&
         std::isfinite(curves.peaks.topSpeed.value_or(0));
}

PowerCurves Failed(const std::string& fault) {
  PowerCurves curves;
  curves.failed = true;
  curves.fault = fault;
  return curves;
}

}  // namespace

std::vector<RunSample> SamplesOfRun(const OpenLog& log, std::int32_t from, std::int32_t to) {
  std::vector<RunSample> samples;
  if (log.glngDataLog.Rows() == 0) return samples;
  const clsLogDataItem& rpm = log.gcolDataItems->Item(ItemOf(kRPM));
  const clsLogDataItem& secs = log.gcolDataItems->Item(ItemOf(kSecs));
  std::int32_t row = LocateSample(log, from - log.glngFirstSampleTime, from);
  for (; row <= log.glngLastSample && samples.size() <= kLongestRun; ++row) {
    if (log.Sample(row) < from || log.Sample(row) > to) continue;
    samples.push_back(
        {secs.GetRawData(log.glngDataLog(kSecs, row)), rpm.GetRawData(log.glngDataLog(kRPM, row))});
  }
  return samples;
}

double DragOf(const clsCarDef& car, const Air& air) {
  if (car.blnUseCD)
    return GetCdDragCalcPart(car.dblCD, car.dblFrontalArea, air.pressure, air.temperature,
                             car.blnImperialUnits);
  return GetSetPointDragCalcPart(car.lngAeroLossPower, car.lngAeroLossSpeed, car.blnImperialUnits);
}

std::int64_t TotalWeight(const PowerRun& run) {
  return std::int64_t{run.car.lngCarWeight} + run.contentsWeight;
}

PowerCurves CurvesOf(const PowerRun& run, const std::vector<PowerPoint>* average) {
  if (const std::string fault = FaultOf(run); !fault.empty()) return Failed(fault);
  PowerCurves curves;
  curves.imperial = run.imperial;
  TakePoints(run, curves);
  Smooth(curves.points, run.smoothing);
  double factor = 1;
  if (run.corrected) factor = run.correction;
  for (PowerPoint& point : curves.points) {
    point.power *= factor;
    point.torque *= factor;
  }
  if (average) AverageWith(curves.points, *average);
  curves.peaks = PeaksOf(curves.points);
  curves.peaks.topSpeed =
      RoundPlaces(TopSpeed(curves.peaks.power, DragOf(run.car, run.air), run.imperial), 1);
  if (AllFinite(curves)) return curves;
  return Failed("");
}

}  // namespace tarnview
