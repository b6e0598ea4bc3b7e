#include "zones/ZoneDefaults.h"

#include "zones/ChipIdentity.h"

namespace tarnview {

std::vector<Message> ApplyZoneDefaults(LoadedZones& zones, const Settings& settings, bool silent) {
  std::vector<Message> messages;
  if (!IsEngineSize(zones.chip.dblEngineSize)) {
    zones.chip.dblEngineSize = settings.gdblDefaultEngineSize;
    messages.push_back(Message::EngineSizeAssumed);
  }
  if (zones.chip.datChipDate == kNoDate) {
    zones.chip.datChipDate = settings.gdatDefaultChipDate;
    messages.push_back(Message::ChipDateAssumed);
  }
  if (zones.intAtmosphericPressure == 0) {
    zones.intAtmosphericPressure = settings.gintDefaultAtmosphericPressure;
    messages.push_back(Message::PressureAssumed);
  }
  if (zones.chip.intChipVersion == 0) zones.chip.intChipVersion = settings.gintDefaultChipVersion;
  if (silent || settings.gblnSilentDefaults) messages.clear();
  return messages;
}

}  // namespace tarnview
