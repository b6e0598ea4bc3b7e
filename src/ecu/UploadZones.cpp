#include "ecu/UploadZones.h"

#include "zones/ChipRules.h"

namespace tarnview {
namespace {

constexpr std::int16_t kLeftAlone = -1;

constexpr std::size_t kIntakeLimit = 4;              // z4
constexpr std::size_t kDefaultAtmosphere = 228;      // z720
constexpr std::size_t kFirstAir = 252, kLast = 255;  // z860 to z875

}  // namespace

void KeepChangesOnly(ZoneSettings& zones, const ZoneSettings& comparison) {
  for (std::size_t index = 0; index < zones.size(); ++index)
    if (zones[index] == comparison[index]) zones[index] = kLeftAlone;
}

bool AirZonesFit(Date formChipDate, Date ownChipDate) {
  return (formChipDate >= kNewChipDate) == (ownChipDate >= kNewChipDate);
}

void LeaveAirZonesAlone(ZoneSettings& zones) {
  zones[kIntakeLimit] = kLeftAlone;
  for (std::size_t index = kFirstAir; index <= kLast; ++index) zones[index] = kLeftAlone;
}

void LeaveAtmosphereAlone(ZoneSettings& zones) { zones[kDefaultAtmosphere] = kLeftAlone; }

}  // namespace tarnview
