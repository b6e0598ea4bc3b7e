#include "power/CarFields.h"

#include "base/Numbers.h"
#include "base/Units.h"

namespace tarnview {
namespace {

constexpr int kRatioPlaces = 3;
constexpr int kMeasurePlaces = 2;

using Car = clsCarDef;
using Fields = CarFields;

struct NumberField {
  double Car::*number;
  std::string& (*field)(Fields&);
  int places;
};
struct WholeField {
  std::int32_t Car::*number;
  std::string& (*field)(Fields&);
};

template <std::string Fields::*member>
std::string& Of(Fields& fields) {
  return fields.*member;
}
template <std::array<std::string, kGears> Fields::*member, std::size_t gear>
std::string& Of(Fields& fields) {
  return (fields.*member)[gear];
}

constexpr NumberField kNumbers[] = {
    {&Car::dbl1stGearRatio, Of<&Fields::ratios, 0>, kRatioPlaces},
    {&Car::dbl2ndGearRatio, Of<&Fields::ratios, 1>, kRatioPlaces},
    {&Car::dbl3rdGearRatio, Of<&Fields::ratios, 2>, kRatioPlaces},
    {&Car::dbl4thGearRatio, Of<&Fields::ratios, 3>, kRatioPlaces},
    {&Car::dbl5thGearRatio, Of<&Fields::ratios, 4>, kRatioPlaces},
    {&Car::dbl6thGearRatio, Of<&Fields::ratios, 5>, kRatioPlaces},
    {&Car::dblDiffRatio, Of<&Fields::diffRatio>, kRatioPlaces},
    {&Car::dblDriveWheelRadius, Of<&Fields::radius>, kMeasurePlaces},
    {&Car::dblCD, Of<&Fields::cd>, kMeasurePlaces},
    {&Car::dblFrontalArea, Of<&Fields::frontalArea>, kMeasurePlaces},
};

constexpr WholeField kWholeNumbers[] = {
    // clang-format off
    {&Car::lng1stGearLoss, Of<&Fields::losses, 0>},       {&Car::lng2ndGearLoss, Of<&Fields::losses, 1>},
    {&Car::lng3rdGearLoss, Of<&Fields::losses, 2>},       {&Car::lng4thGearLoss, Of<&Fields::losses, 3>},
    {&Car::lng5thGearLoss, Of<&Fields::losses, 4>},       {&Car::lng6thGearLoss, Of<&Fields::losses, 5>},
    {&Car::lngTyreWidth, Of<&Fields::tyreWidth>},         {&Car::lngTyreProfile, Of<&Fields::tyreProfile>},
    {&Car::lngWheelDiameter, Of<&Fields::wheelDiameter>}, {&Car::lngTyreRPM, Of<&Fields::tyreRpm>},
    {&Car::lngAeroLossPower, Of<&Fields::setPointPower>}, {&Car::lngAeroLossSpeed, Of<&Fields::setPointSpeed>},
    {&Car::lngCarWeight, Of<&Fields::carWeight>},         {&Car::lngCarContentsWeight, Of<&Fields::contentsWeight>},
    {&Car::lngSmoothingFactor, Of<&Fields::smoothing>},   {&Car::lngDynoCorrectionFactor, Of<&Fields::dyno>},
    // clang-format on
};

constexpr double kMilesToKilometres = kMetresPerMile / 1000;

constexpr std::array<CarUnitRow, kCarUnits> kUnits{{
    // clang-format off
    {&Fields::radius, kMillimetresPerInch, kMeasurePlaces, "Drive Wheel Radius (inches)", "Drive Wheel Radius (mm)"},
    {&Fields::setPointPower, kWattsPerHorsepower / 1000, 0, "Wheel Power (hp)", "Wheel Power (kW)"},
    {&Fields::setPointSpeed, kMilesToKilometres, 0, "Speed (mph)", "Speed (kmh)"},
    {&Fields::carWeight, kKilogramsPerPound, 0, "Car Kerb Weight (lb)", "Car Kerb Weight (kg)"},
    {&Fields::contentsWeight, kKilogramsPerPound, 0, "Car Contents Weight (lb)", "Car Contents Weight (kg)"},
    {nullptr, kKilogramsPerPound, 0, "Total Car Weight (lb)", "Total Car Weight (kg)"},
    {&Fields::tyreRpm, 1 / kMilesToKilometres, 0, "Revs per Mile", "Revs per km"},
    {&Fields::frontalArea, kSquareMetresPerSquareFoot, kMeasurePlaces, "Frontal Area (ft2)", "Frontal Area (m2)"},
    // clang-format on
}};

/// A number with two places in least..most; at `beyond` and above it is `most`.
std::string Held(std::string_view text, double beyond, double most) {
  constexpr double kLeast = 0.01;
  const double value = RoundPlaces(ValDouble(text), kMeasurePlaces);
  if (value < kLeast) return FixedText(kLeast, kMeasurePlaces);
  if (value >= beyond) return FixedText(most, kMeasurePlaces);
  return FixedText(value, kMeasurePlaces);
}

}  // namespace

CarFields FieldsOf(const clsCarDef& car) {
  CarFields fields;
  fields.name = car.strName;
  fields.description = car.strDesc;
  fields.imperial = car.blnImperialUnits;
  for (const NumberField& row : kNumbers)
    row.field(fields) = FixedText(car.*row.number, row.places);
  for (const WholeField& row : kWholeNumbers) row.field(fields) = std::to_string(car.*row.number);
  fields.tyreSizeMethod = car.lngTyreSizeMethod;
  fields.useCd = car.blnUseCD;
  fields.gear = car.lngPowerRunGear;
  return fields;
}

clsCarDef CarOf(const CarFields& given) {
  CarFields fields = given;
  clsCarDef car;
  car.strName = fields.name;
  car.strDesc = fields.description;
  car.blnImperialUnits = fields.imperial;
  for (const NumberField& row : kNumbers) car.*row.number = StringToDouble(row.field(fields));
  for (const WholeField& row : kWholeNumbers) car.*row.number = StringToLong(row.field(fields));
  car.lngTyreSizeMethod = fields.tyreSizeMethod;
  car.blnUseCD = fields.useCd;
  car.lngPowerRunGear = fields.gear;
  return car;
}

std::string RatioText(std::string_view text) {
  return FixedText(StringToDouble(text), kRatioPlaces);
}

const CarUnitRow& CarUnitOf(CarUnit unit) { return kUnits[static_cast<std::size_t>(unit)]; }

void ConvertFields(CarFields& fields, bool toMetric) {
  for (const CarUnitRow& row : kUnits) {
    if (!row.field) continue;
    std::string& text = fields.*row.field;
    double value = StringToDouble(text);
    if (toMetric)
      value *= row.toMetric;
    else
      value /= row.toMetric;
    text = FixedText(value, row.places);
  }
}

std::string ValidateCD(std::string_view strValue) { return Held(strValue, 1.0, 0.99); }

std::string ValidateFrontalArea(std::string_view strValue) { return Held(strValue, 50.0, 49.99); }

}  // namespace tarnview
