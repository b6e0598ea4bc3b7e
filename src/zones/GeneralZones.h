#pragma once

#include <string>
#include <string_view>

#include "model/ZoneSettings.h"
#include "zones/ZoneRange.h"

namespace tarnview {

/// How a raw value is shown, and what is saved for a shown value.
struct ZoneConversion {
  int (*toShown)(int raw);
  int (*toRaw)(int shown);
};

/// A setting of the list, as it is on one chip.
struct GeneralZone {
  int zone;                ///< index
  std::string_view label;  ///< "" for a setting that has none
  std::string_view range;  ///< "015/085"; "" for 0 to 255
  const ZoneConversion* conversion;
  int step = 1;                      ///< shown values are multiples of it
  std::string_view shownRange = {};  ///< of the shown value, where `range` counts raw values
  bool offAt255 = false;             ///< raw 255 is shown as "OFF"
  bool (*when)(const ChipIdentity&) = nullptr;

  ZoneRange Range() const { return ParseZoneRange(shownRange.empty() ? range : shownRange); }
  int ToShown(int raw) const { return conversion->toShown(raw); }
  /// Holds the value to the range and the step first.
  int ToRaw(int shown) const { return conversion->toRaw(Force(shown)); }
  /// The nearest shown value that the setting can have; halves of a step go up.
  int Force(int shown) const;
  /// The shown value as a text, or "OFF".
  std::string Text(int raw) const;
};

/// The setting of a zone on a chip; nullptr for zones that are no plain setting (flags, grids, z805).
const GeneralZone* FindGeneralZone(int zone, const ChipIdentity& chip);

/// The row of z725 to z775, one target for each 500 RPM from 2500 to 7500, is entered in kPa or as "Pct".
inline constexpr std::string_view kBoostTargetsLabel = "Boost Targets";
inline constexpr std::string_view kBoostTargetRange = "100/255", kBoostTargetRangePct = "000/099";

// z21, the ignition trim, is stored in quarter degrees: two's complement on a 1.6 of before November 2000, else with an
// offset of 20.

int TrimQuarters(int raw, const ChipIdentity& chip);
double TrimDegrees(int raw, const ChipIdentity& chip);
/// Degrees are held to -5 to 5 and to quarters.
int TrimRaw(double degrees, const ChipIdentity& chip);

}  // namespace tarnview
