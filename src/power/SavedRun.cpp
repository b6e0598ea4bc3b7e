#include "power/SavedRun.h"

#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/Units.h"
#include "power/Drag.h"
#include "power/UnitNames.h"

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
             UnitNamesOf(car.blnImperialUnits).distance;
    default:
      return NumberText(car.dblDriveWheelRadius) + UnitNamesOf(car.blnImperialUnits).radius +
             "drive wheel radius";
  }
}

void SayCar(const clsCarDef& car, PowerFile& graph) {
  const UnitNames& units = UnitNamesOf(car.blnImperialUnits);
  for (int gear = 0; gear < kGears; ++gear) {
    graph.gearRatios[static_cast<std::size_t>(gear)] = FixedText(GearRatio(car, gear), 3);
    graph.gearLosses[static_cast<std::size_t>(gear)] = std::to_string(GearLoss(car, gear));
  }
  graph.finalDrive = FixedText(car.dblDiffRatio, 3);
  graph.driveWheel = DriveWheelText(car);
  graph.usesDrag = car.blnUseCD;
  graph.dragCoefficient = NumberText(car.dblCD);
  graph.frontalArea = NumberText(car.dblFrontalArea) + units.area;
  graph.setPointPower = std::to_string(car.lngAeroLossPower) + units.power;
  graph.setPointSpeed = std::to_string(car.lngAeroLossSpeed) + units.speed;
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

std::optional<double> CdDragOf(const PowerFile& graph, const Air& air) {
  if (graph.dragCoefficient.empty() || graph.frontalArea.empty()) return std::nullopt;
  return GetCdDragCalcPart(CDblStripUnits(graph.dragCoefficient), CDblStripUnits(graph.frontalArea),
                           air.pressure, air.temperature, !Bears(graph.frontalArea, "m2"));
}

std::optional<double> SetPointDragOf(const PowerFile& graph) {
  if (graph.setPointPower.empty() || graph.setPointSpeed.empty()) return std::nullopt;
  return GetSetPointDragCalcPart(CDblStripUnits(graph.setPointPower),
                                 CDblStripUnits(graph.setPointSpeed),
                                 !Bears(graph.setPointPower, "kW"));
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
  graph.carWeight = std::to_string(TotalWeight(run)) + UnitNamesOf(run.car.blnImperialUnits).weight;
  graph.smoothing = std::to_string(run.smoothing);
  if (curves.imperial)
    graph.units = "Imperial";
  else
    graph.units = "Metric";
  if (run.corrected) graph.correctionFactor = correctionFactor;
  graph.points = curves.points;
  graph.speed = SpeedsIn(curves.speed, curves.imperial);
  return graph;
}

std::vector<SpeedPoint> SpeedsIn(std::vector<SpeedPoint> speed, bool imperial) {
  const double unit = imperial ? kMetresPerSecondInMph : kMetresPerSecondInKmh;
  for (SpeedPoint& point : speed) point.speed /= unit;
  return speed;
}

std::optional<double> DragOf(const PowerFile& graph, const Air& air) {
  const std::optional<double> k = graph.usesDrag ? CdDragOf(graph, air) : SetPointDragOf(graph);
  if (!k || !std::isfinite(*k) || *k == 0) return std::nullopt;
  return k;
}

}  // namespace tarnview
