#pragma once

#include <string>

#include "base/Dates.h"
#include "model/Settings.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneMap.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneSheet.h"

namespace tarnview {

/// "1.8 2003-02-15 2": engine size, chip date, version.
inline ChipIdentity Chip(const std::string& text) {
  return {text.starts_with("1.8") ? 1.8 : 1.6, StringToDate(text.substr(4, 10), kNoDate),
          std::stoi(text.substr(15))};
}

/// All zones alike, but for z5 and z800, which hold flags.
inline ZoneMap MapWith(const ChipIdentity& chip, int flags, int more = 0, int zones = 100) {
  ZoneMap map;
  map.zones.fill(static_cast<std::int16_t>(zones));
  map.chip = chip;
  map.intAtmosphericPressure = 101;
  map.zones[5] = static_cast<std::int16_t>(flags);
  map.zones[240] = static_cast<std::int16_t>(more);
  return map;
}

/// The user's own chip, for what a file leaves out.
inline Settings OwnChip() {
  Settings settings;
  settings.gdblDefaultEngineSize = 1.8;
  settings.gdatDefaultChipDate = MakeDate(2001, 9, 18);
  settings.gintDefaultChipVersion = 3;
  settings.gintDefaultAtmosphericPressure = 99;
  return settings;
}

/// "z33 100>250 +9 sensor NB": what an edit changed, ticks by number; of many cells how many, and
/// the first.
inline std::string Changes(const ZoneSheet& before, const ZoneSheet& after) {
  std::string told, cells;
  int count = 0;
  for (int zone = 0; zone < 256; ++zone) {
    if (before.Shown(zone) == after.Shown(zone)) continue;
    const bool inGrid = zone >= 32 && zone < 224;
    count += inGrid;
    (inGrid ? cells : told) +=
        ZoneName(zone) + " " + FieldText(before, zone) + ">" + FieldText(after, zone) + " ";
  }
  if (count > 20)
    cells = std::to_string(count) + " cells such as " + cells.substr(0, cells.find(" z") + 1);
  told += cells;
  for (int i = 0; i < kTicks; ++i)
    if (before.Ticked(Tick{i}) != after.Ticked(Tick{i}))
      told += (after.Ticked(Tick{i}) ? "+" : "-") + std::to_string(i) + " ";
  if (before.autoTuneType != after.autoTuneType) told += "type '" + after.autoTuneType + "' ";
  if (before.O2Sensor != after.O2Sensor) told += "sensor " + after.O2Sensor + " ";
  if (before.boostTargets != after.boostTargets) told += after.boostTargets ? "kPa " : "Pct ";
  if (before.chip != after.chip) told += "chip ";
  if (before.intAtmosphericPressure != after.intAtmosphericPressure) told += "pressure ";
  return told.empty() ? told : told.substr(0, told.size() - 1);
}

}  // namespace tarnview
