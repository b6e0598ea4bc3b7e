#pragma once

#include <string>

#include "base/Dates.h"
#include "zones/ZoneMap.h"

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

}  // namespace tarnview
