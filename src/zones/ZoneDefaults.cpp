#include "zones/ZoneDefaults.h"

#include "zones/ChipIdentity.h"

namespace tarnview {

std::vector<int> ApplyZoneDefaults(LoadedZones& zones, const Settings& settings, bool silent) {
  constexpr int kEngineSizeMessage = 7, kChipDateMessage = 8, kPressureMessage = 9;
  std::vector<int> messages;
  if (!IsEngineSize(zones.chip.dblEngineSize)) {
    zones.chip.dblEngineSize = settings.gdblDefaultEngineSize;
    messages.push_back(kEngineSizeMessage);
  }
  if (zones.chip.datChipDate == kNoDate) {
    zones.chip.datChipDate = settings.gdatDefaultChipDate;
    messages.push_back(kChipDateMessage);
  }
  if (zones.intAtmosphericPressure == 0) {
    zones.intAtmosphericPressure = settings.gintDefaultAtmosphericPressure;
    messages.push_back(kPressureMessage);
  }
  if (zones.chip.intChipVersion == 0) zones.chip.intChipVersion = settings.gintDefaultChipVersion;
  if (silent || settings.gblnSilentDefaults) messages.clear();
  return messages;
}

}  // namespace tarnview
