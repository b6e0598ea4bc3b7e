#include "power/SavedRun.h"

#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/Units.h"
#include "power/Drag.h"

namespace tarnview {
namespace {

std::string DriveWheelText(const clsCarDef& car) {
  switch (car.lngTyreSizeMethod) {
    case kTyreSize:
      return "Tyre size " + std::to_string(car.lngTyreWidth) + "/" +
             std::to_string(car.lngTyreProfile) + " R" + std::to_string(car.lngWheelDiameter);
    case kTyreRevolutions:
      // The blank at the end is kept on purpose: files have always had it.
      return std::to_string(car.lngTyreRPM) + " Revolutions per " +
             (car.blnImperialUnits ? "Mile " : "Km ");
    default:
      return NumberText(car.dblDriveWheelRadius) + (car.blnImperialUnits ? " in " : " mm ") +
             "drive wheel radius";
  }
}

void SayCar(const clsCarDef& car, PowerFile& graph) {
  const bool imperial = car.blnImperialUnits;
  for (int gear = 0; gear < kGears; ++gear) {
    graph.gearRatios[static_cast<std::size_t>(gear)] = FixedText(GearRatio(car, gear), 3);
    graph.gearLosses[static_cast<std::size_t>(gear)] = std::to_string(GearLoss(car, gear));
  }
  graph.finalDrive = FixedText(car.dblDiffRatio, 3);
  graph.driveWheel = DriveWheelText(car);
  graph.usesDrag = car.blnUseCD;
  graph.dragCoefficient = NumberText(car.dblCD);
  graph.frontalArea = NumberText(car.dblFrontalArea) + (imperial ? " ft2" : " m2");
  graph.setPointPower = std::to_string(car.lngAeroLossPower) + (imperial ? " hp" : " kW");
  graph.setPointSpeed = std::to_string(car.lngAeroLossSpeed) + (imperial ? " mph" : " kmh");
  graph.dyno = std::to_string(car.lngDynoCorrectionFactor);
}

void SayAir(const Air& air, PowerFile& graph) {
  graph.temperature = std::to_string(air.temperature) + " 'C";
  graph.pressure = std::to_string(air.pressure) + " kPa";
  graph.wetBulb = air.humidityType == HumidityType::WetBulb;
  graph.humidity = air.humidity + (graph.wetBulb ? " 'C WB" : " %");
}

bool Bears(std::string_view text, std::string_view unit) {
  return text.find(unit) != std::string_view::npos;
}

}  // namespace

const char* GearName(int gear) {
  constexpr std::array<const char*, kGears> kNames{"1st", "2nd", "3rd", "4th", "5th", "6th"};
  return kNames[static_cast<std::size_t>(gear)];
}

PowerFile SavedRun(const PowerRun& run, const PowerCurves& curves, const RunOrigin& origin,
                   const std::string& correctionFactor) {
  PowerFile graph;
  graph.file = origin.file;
  graph.plotFrom = origin.plotFrom;
  graph.plotTo = origin.plotTo;
  graph.comments = origin.comments;
  SayCar(run.car, graph);
  SayAir(run.air, graph);
  graph.gear = GearName(run.gear);
  graph.carWeight = std::to_string(TotalWeight(run)) + (run.car.blnImperialUnits ? " lb" : " kg");
  graph.smoothing = std::to_string(run.smoothing);
  graph.units = curves.imperial ? "Imperial" : "Metric";
  if (run.corrected) graph.correctionFactor = correctionFactor;
  graph.points = curves.points;
  graph.speed = SpeedsIn(curves.speed, curves.imperial);
  return graph;
}

std::vector<SpeedPoint> SpeedsIn(std::vector<SpeedPoint> speed, bool imperial) {
  for (SpeedPoint& point : speed)
    point.speed /= imperial ? kMetresPerSecondInMph : kMetresPerSecondInKmh;
  return speed;
}

std::optional<double> DragOf(const PowerFile& graph, const Air& air) {
  const std::string& first = graph.usesDrag ? graph.dragCoefficient : graph.setPointPower;
  const std::string& second = graph.usesDrag ? graph.frontalArea : graph.setPointSpeed;
  if (first.empty() || second.empty()) return std::nullopt;
  const double a = CDblStripUnits(first), b = CDblStripUnits(second);
  const double k =
      graph.usesDrag ? GetCdDragCalcPart(a, b, air.pressure, air.temperature, !Bears(second, "m2"))
                     : GetSetPointDragCalcPart(a, b, !Bears(first, "kW"));
  if (!std::isfinite(k) || k == 0) return std::nullopt;
  return k;
}

}  // namespace tarnview
