#include "zones/ZoneMap.h"

namespace tarnview {

ZoneMap MapOf(const LoadedZones& loaded) {
  return {loaded.zones, loaded.chip, loaded.intAtmosphericPressure, loaded.strNotes};
}

void SetMap(LoadedZones& loaded, const ZoneMap& map) {
  loaded.zones = map.zones;
  loaded.chip = map.chip;
  loaded.intAtmosphericPressure = map.intAtmosphericPressure;
  loaded.strNotes = map.strNotes;
}

ZoneMap MapOf(const clsBenchmark& benchmark) {
  return {benchmark.GetZoneSettingsDirect(),
          {benchmark.EngineSize, benchmark.ChipDate, benchmark.ChipVersion},
          benchmark.AtmosphericPressure,
          ""};
}

void SetMap(clsBenchmark& benchmark, const ZoneMap& map) {
  benchmark.SetZoneSettingsDirect(map.zones);
  benchmark.EngineSize = map.chip.dblEngineSize;
  benchmark.ChipDate = map.chip.datChipDate;
  benchmark.ChipVersion = static_cast<std::int16_t>(map.chip.intChipVersion);
  benchmark.AtmosphericPressure = static_cast<std::int16_t>(map.intAtmosphericPressure);
}

}  // namespace tarnview
