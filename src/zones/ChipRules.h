#pragma once

#include <optional>
#include <string_view>

#include "model/ZoneSettings.h"

namespace tarnview {

/// Settings that exist on some chips only. A "boost" rule says what the chip can do; the setting
/// also needs the boost section, which the window knows.
enum class ChipRule {
  ClosedLoop,             ///< "Closed Lp -ve", "Closed Lp +ve"; boost
  AdvanceLimit,           ///< z4 is "Advance Limit", not "Intake Limit ('C)"
  AdvanceLimitAvailable,  ///< and may be edited
  RunIACLabels,           ///< z18, z19 are "Run IAC", "Start IAC", not "Hot IAC", "Cold IAC"
  AirTemperature,         ///< z860 to z875; the rows below limit z860, z870 and z875 further
  SecurityAndName,        ///< "  Security Enabled", the chip's name
  OvershootAndDroop,      ///< "Overshoot Supp.", "Droop Supp."; boost
  IACRate,
  DecelScale,
  BoostHysteresis,  ///< "Boost Hysteresis", "Rise Rate Weight"; boost
  MixtureFuelFlag,  ///< " M. Fuel" instead of the O2 sensor; targets are 70 to 110
  EnablePrimeDelay,
  SpeedoCalibration,  ///< z7 is "Speedo. Calib.", not "Volt. Correction"
  L3LowMAPLabels,     ///< z860, z865 are "L3 Low MAP", "Intake Comp.", not "Fuel Low Slope", "Fuel
                      ///< High Slope"
  FuelLowSlopeOrL3LowMAP,  ///< z860
  InjectorOffset,          ///< "Injector Offset", "Debug Data"
  VICSActivation,
  IgnitionStartAndSlope,  ///< z870, z875
  Enable18TPSOn16,        ///< "TPS Idle Sw."; despite its name, at 1.8 alone
  EnableIdleStabilisation,
  EnableQuadInjection,
  KnockLight,
  AltEGRCurve,           ///< and EGR is ticked
  EnableIATBoostTarget,  ///< boost
  FanAndTPS,             ///< "Fan Temp ('C)", "TPS Offset", "TPS Scale"
  EGRFlag,               ///< bit 3 of z5
  OffsetSlope,
};

/// Whether the setting exists on the chip.
bool ChipAllows(ChipRule rule, const ChipIdentity& chip);
bool ChipAllows(ChipRule rule, double engineSize, Date chipDate, int chipVersion);

bool EnablePrimeDelay(double engineSize, Date chipDate, int chipVersion);
bool Enable18TPSOn16(double engineSize, Date chipDate, int chipVersion);
bool EnableIdleStabilisation(double engineSize, Date chipDate, int chipVersion);
bool EnableQuadInjection(double engineSize, Date chipDate, int chipVersion);
bool EnableIATBoostTarget(double engineSize, Date chipDate, int chipVersion);

/// From this date (1 March 2001) on, chips know intake air temperature: a "new chip".
inline constexpr Date kNewChipDate = 36951;

}  // namespace tarnview
