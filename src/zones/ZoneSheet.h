#pragma once

#include <array>
#include <string>
#include <string_view>

#include "zones/GeneralZones.h"
#include "zones/ZoneMap.h"
#include "zones/ZoneTicks.h"

namespace tarnview {

/// What the editor shows of a map: a plain value. The shown numbers are the truth, not the raw
/// ones, since a new engine size keeps them. The map that they came from gives the bits that cannot
/// be shown.
struct ZoneSheet {
  std::array<int, 256> shown{};  ///< as fields and cells show them; flags are in `ticks`
  std::array<bool, kTicks> ticks{};
  ChipIdentity chip;  ///< the version never changes
  int intAtmosphericPressure = 0;
  std::string strNotes;
  std::string MAPID;
  std::string autoTuneType;  ///< "" for none chosen
  std::string O2Sensor;
  bool boostTargets = true;        ///< z725 to z775 are kPa, not per cent of the wastegate's cycle
  bool normallyAspirated = false;  ///< as it was opened: a new MAP ID lays nothing out again

  bool& Ticked(Tick tick) { return ticks[static_cast<std::size_t>(tick)]; }
  bool Ticked(Tick tick) const { return ticks[static_cast<std::size_t>(tick)]; }
  int& Shown(int zone) { return shown[static_cast<std::size_t>(zone)]; }
  int Shown(int zone) const { return shown[static_cast<std::size_t>(zone)]; }

  friend bool operator==(const ZoneSheet&, const ZoneSheet&) = default;
};

/// The sheet of a map. A number out of its range stays; z4 alone is held to its range.
ZoneSheet OpenSheet(const ZoneMap& map);
/// The map of a sheet, with the conversions and dates of `chip`. `source` is the map that was
/// opened.
ZoneMap Rebuild(const ZoneSheet& sheet, const ZoneMap& source, const ChipIdentity& chip);
inline ZoneMap Rebuild(const ZoneSheet& sheet, const ZoneMap& source) {
  return Rebuild(sheet, source, sheet.chip);
}

/// Of z725 to z775: "kPa", or "Pct" of the wastegate's cycle.
inline std::string_view BoostUnit(const ZoneSheet& sheet) {
  if (sheet.boostTargets) return "kPa";
  return "Pct";
}

// What a sheet's chip has.

bool FieldExists(const ZoneSheet& sheet, int zone);
bool TickExists(const ZoneSheet& sheet, Tick tick);
/// Of the shown value of a field or cell: "-70/185".
std::string RangeText(const ZoneSheet& sheet, int zone);
ZoneRange FieldRange(const ZoneSheet& sheet, int zone);
/// The nearest value that the field can have.
int Forced(const ZoneSheet& sheet, int zone, int shown);
/// What the field or cell shows.
std::string FieldText(const ZoneSheet& sheet, int zone);
/// Empty for a zone without a field.
std::string_view FieldLabel(const ZoneSheet& sheet, int zone);

}  // namespace tarnview
