#include "power/DriveWheel.h"

#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/Units.h"

namespace tarnview {
namespace {

constexpr double kPi =
    3.14159;  // these digits and no more: results are compared with those of older files
constexpr double kSecondsPerMinute = 60;

struct Gear {
  double clsCarDef::*ratio;
  std::int32_t clsCarDef::*loss;
};

constexpr std::array<Gear, kGears> kGearMembers{{
    {&clsCarDef::dbl1stGearRatio, &clsCarDef::lng1stGearLoss},
    {&clsCarDef::dbl2ndGearRatio, &clsCarDef::lng2ndGearLoss},
    {&clsCarDef::dbl3rdGearRatio, &clsCarDef::lng3rdGearLoss},
    {&clsCarDef::dbl4thGearRatio, &clsCarDef::lng4thGearLoss},
    {&clsCarDef::dbl5thGearRatio, &clsCarDef::lng5thGearLoss},
    {&clsCarDef::dbl6thGearRatio, &clsCarDef::lng6thGearLoss},
}};

/// Millimetres: two walls of the tyre and the rim between them.
double DiameterOfTyre(const clsCarDef& car) {
  const double wall = static_cast<double>(car.lngTyreWidth) * car.lngTyreProfile / 100;
  return wall * 2 + car.lngWheelDiameter * kMillimetresPerInch;
}

}  // namespace

double GearRatio(const clsCarDef& car, int gear) {
  return car.*kGearMembers[static_cast<std::size_t>(gear)].ratio;
}

std::int32_t GearLoss(const clsCarDef& car, int gear) {
  return car.*kGearMembers[static_cast<std::size_t>(gear)].loss;
}

double DriveWheelCircumference(const clsCarDef& car) {
  switch (car.lngTyreSizeMethod) {
    case kTyreSize:
      return DiameterOfTyre(car) / 1000 * kPi;
    case kTyreRevolutions:
      return (car.blnImperialUnits ? kMetresPerMile : 1000) / car.lngTyreRPM;
    default:
      return 2 * car.dblDriveWheelRadius * kPi * (car.blnImperialUnits ? kMillimetresPerInch : 1) /
             1000;
  }
}

double SpeedPerRpm(const clsCarDef& car, int gear) {
  return DriveWheelCircumference(car) / (GearRatio(car, gear) * car.dblDiffRatio) /
         kSecondsPerMinute;
}

int GearOfSpeed(const clsCarDef& car, double speed, double rpm) {
  const double atOneToOne =
      RoundHalfEven(speed / DriveWheelCircumference(car) * car.dblDiffRatio * kSecondsPerMinute);
  const auto error = [&](int gear) {
    return RoundHalfEven(std::fabs(atOneToOne * GearRatio(car, gear) - rpm));
  };
  int best = kGears - 1;
  for (int gear = best - 1; gear >= 0; --gear)
    if (error(gear) <= error(best)) best = gear;
  return best;
}

}  // namespace tarnview
