#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "model/ZoneSettings.h"
#include "zones/ChipRules.h"
#include "zones/ZoneRange.h"

namespace tarnview {

/// What "OFF" stands for where a setting can be switched off.
inline constexpr int kOffValue = 255;
inline constexpr std::string_view kOffText = "OFF";

/// How a raw value is shown, and what is saved for a shown value.
struct ZoneConversion {
  int (*toShown)(int raw);
  int (*toRaw)(int shown);
};

/// A setting of the list, as it is on one chip.
struct GeneralZone {
  int zone;                ///< index
  std::string_view label;  ///< "" for a setting that has none
  std::string_view range;  ///< "015/085" of the shown value; "" for 0 to 255
  const ZoneConversion* conversion;
  int step = 1;           ///< shown values are multiples of it
  int roundUp = 0;        ///< what goes up to the next step: half a step, or nothing
  bool offAt255 = false;  ///< raw 255 is shown as "OFF"
  bool (*when)(const ChipIdentity&) = nullptr;
  std::optional<ChipRule> rule = {};  ///< the chips that have it; empty for all
  bool boost = false;  ///< of the boost section, which a normally aspirated chip lacks

  constexpr GeneralZone Steps(int size) const {
    GeneralZone row = *this;
    row.step = size;
    row.roundUp = size / 2;
    return row;
  }
  constexpr GeneralZone EvenOnly() const {
    GeneralZone row = *this;
    row.step = 2;
    return row;
  }
  constexpr GeneralZone Off() const {
    GeneralZone row = *this;
    row.offAt255 = true;
    return row;
  }
  constexpr GeneralZone If(bool (*fits)(const ChipIdentity&)) const {
    GeneralZone row = *this;
    row.when = fits;
    return row;
  }
  constexpr GeneralZone Exists(ChipRule itsRule) const {
    GeneralZone row = *this;
    row.rule = itsRule;
    return row;
  }
  constexpr GeneralZone Boost() const {
    GeneralZone row = *this;
    row.boost = true;
    return row;
  }

  ZoneRange Range() const { return ParseZoneRange(range); }
  int ToShown(int raw) const { return conversion->toShown(raw); }
  /// As it stands, whatever the range: what an ECU holds stays as it is until somebody edits it.
  int ToRaw(int shown) const { return conversion->toRaw(shown); }
  /// The nearest shown value that the setting can have; halves of a step go up, odd values of an
  /// even one down.
  int Force(int shown) const { return Force(shown, Range()); }
  int Force(int shown, const ZoneRange& limits) const;
  /// A shown value as a text, or "OFF".
  std::string Text(int shown) const;
};

/// The settings of a chip: its row for each zone, or nullptr.
std::array<const GeneralZone*, 256> GeneralZonesOf(const ChipIdentity& chip);

/// The setting of a zone on a chip; nullptr for zones that are no plain setting (flags, grids,
/// z805).
const GeneralZone* FindGeneralZone(int zone, const ChipIdentity& chip);

/// The row of z725 to z775, one target for each 500 RPM from 2500 to 7500, is entered in kPa or as
/// "Pct".
inline constexpr std::string_view kBoostTargetRange = "100/255", kBoostTargetRangePct = "000/099";

/// z21, the ignition trim, is shown in quarter degrees; the same in degrees, "-1.50".
std::string TrimDegreesText(int quarters);
/// Degrees as typed, held to -5 to 5 and to the nearest quarter.
int TrimQuarters(std::string_view degrees);

}  // namespace tarnview
