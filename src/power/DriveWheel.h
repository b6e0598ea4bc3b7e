#pragma once

#include <cstdint>

#include "power/clsCarDef.h"

namespace tarnview {

inline constexpr int kGears = 6;

/// Ratio of a gear, 0 for 1st to 5 for 6th.
double GearRatio(const clsCarDef& car, int gear);
/// Per cent that a gear loses more than the 1:1 gear does.
std::int32_t GearLoss(const clsCarDef& car, int gear);

/// Metres that the car rolls in one turn of the drive wheel; infinite for no turns a mile.
double DriveWheelCircumference(const clsCarDef& car);

/// Metres per second of road speed for each rpm of the engine.
double SpeedPerRpm(const clsCarDef& car, int gear);

/// The gear whose ratio explains best that the engine turns at `rpm` when the car does `speed`
/// (metres per second); of two that explain it as well, the lower. Both are held as whole rpm,
/// since a log's are.
int GearOfSpeed(const clsCarDef& car, double speed, double rpm);

}  // namespace tarnview
