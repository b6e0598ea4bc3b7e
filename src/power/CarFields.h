#pragma once

#include <array>
#include <string>
#include <string_view>

#include "power/DriveWheel.h"
#include "power/clsCarDef.h"

namespace tarnview {

/// A car definition as the fields of its window hold it: texts, not held to any limit.
struct CarFields {
  std::string name, description;
  bool imperial = true;
  std::array<std::string, kGears> ratios;
  std::string diffRatio;
  std::array<std::string, kGears> losses;
  std::string radius, tyreWidth, tyreProfile, wheelDiameter, tyreRpm;
  int tyreSizeMethod = kTyreSize;
  std::string setPointPower, setPointSpeed;
  bool useCd = false;
  std::string cd, frontalArea;
  int gear = 0;  ///< 0 for 1st to 5 for 6th
  std::string carWeight, contentsWeight, smoothing, dyno;
};

/// Ratios with three places, radius, drag coefficient and frontal area with two.
CarFields FieldsOf(const clsCarDef& car);
clsCarDef CarOf(const CarFields& fields);

/// A ratio as a field shows it: "1.330".
std::string RatioText(std::string_view text);

/// The fields whose unit changes with the car's, in the order of the table below.
enum class CarUnit {
  Radius,
  SetPointPower,
  SetPointSpeed,
  CarWeight,
  ContentsWeight,
  TotalWeight,
  TyreRpm,
  FrontalArea
};

struct CarUnitRow {
  std::string CarFields::*field;  ///< nullptr: shown only
  double toMetric;                ///< what an imperial number is multiplied by
  int places;                     ///< of the converted number
  const char* imperialLabel;
  const char* metricLabel;
};

inline constexpr int kCarUnits = 8;
const CarUnitRow& CarUnitOf(CarUnit unit);

/// Turns the numbers of the fields into the other units; `fields.imperial` is the caller's.
void ConvertFields(CarFields& fields, bool toMetric);

/// A drag coefficient as a field keeps it: the number that the text starts with, "0.01" to "0.99".
std::string ValidateCD(std::string_view strValue);
/// A frontal area: "0.01" to "49.99".
std::string ValidateFrontalArea(std::string_view strValue);

}  // namespace tarnview
