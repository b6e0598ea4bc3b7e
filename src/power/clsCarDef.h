#pragma once

#include <cstdint>
#include <string>

#include "base/Records.h"

namespace tarnview {

/// How the drive wheel of a car is given; any other number stands for the radius.
enum TyreSizeMethod : std::int32_t { kTyreSize = 1, kTyreRevolutions = 2, kTyreRadius = 3 };

/// What the power calculation needs to know of a car. Measures are imperial or metric by its own
/// flag; the values here are those of a new one.
class clsCarDef {
 public:
  std::string strName = "New";
  std::string strDesc = "New Car Definition";
  bool blnImperialUnits = true;
  double dbl1stGearRatio = 3.136;
  double dbl2ndGearRatio = 1.888;
  double dbl3rdGearRatio = 1.33;
  double dbl4thGearRatio = 1.0;
  double dbl5thGearRatio = 0.814;
  double dbl6thGearRatio = 0.814;
  double dblDiffRatio = 4.1;
  std::int32_t lng1stGearLoss = 15;  ///< per cent more than the drive train loses in the 1:1 gear
  std::int32_t lng2ndGearLoss = 10;
  std::int32_t lng3rdGearLoss = 7;
  std::int32_t lng4thGearLoss = 0;
  std::int32_t lng5thGearLoss = 3;
  std::int32_t lng6thGearLoss = 6;
  std::int32_t lngTyreSizeMethod = kTyreSize;
  double dblDriveWheelRadius = 11.5;    ///< ground to hub; inches or mm
  std::int32_t lngTyreWidth = 185;      ///< mm
  std::int32_t lngTyreProfile = 60;     ///< per cent of the width
  std::int32_t lngWheelDiameter = 14;   ///< inches, in both systems
  std::int32_t lngTyreRPM = 887;        ///< revolutions per mile or km
  std::int32_t lngAeroLossPower = 100;  ///< at the wheels at the speed below; hp or kW
  std::int32_t lngAeroLossSpeed = 115;  ///< mph or km/h
  bool blnUseCD = false;                ///< drag by the two below, not by the two above
  double dblCD = 0.4;                   ///< 0.01 to 0.99
  double dblFrontalArea = 2.0;          ///< square feet or metres, 0.01 to 49.99
  std::int32_t lngPowerRunGear = 3;     ///< 0 for 1st to 5 for 6th
  std::int32_t lngCarWeight = 2420;     ///< lb or kg
  std::int32_t lngCarContentsWeight = 180;
  std::int32_t lngSmoothingFactor = 7;
  std::int32_t lngDynoCorrectionFactor = 0;  ///< per cent

  clsCarDef Duplicate() const { return *this; }
};

/// The user's car definitions, in their order.
class clsCarDefs : public Records<clsCarDef> {
 public:
  static clsCarDef BlankPreset() { return {}; }
  clsCarDefs Duplicate() const { return *this; }
};

}  // namespace tarnview
