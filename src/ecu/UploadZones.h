#pragma once

#include "model/ZoneSettings.h"

namespace tarnview {

// Which zones of a map are sent: -1 leaves the ECU's own value alone.

/// -1 where both have the same value.
void KeepChangesOnly(ZoneSettings& zones, const ZoneSettings& comparison);

/// Chips from 1 March 2001 on measure the intake air; the zones for it mean something else, or
/// nothing, before.
bool AirZonesFit(Date formChipDate, Date ownChipDate);
/// -1 in the intake limit and the four air temperature settings.
void LeaveAirZonesAlone(ZoneSettings& zones);

/// -1 in the default atmospheric pressure, which is never sent.
void LeaveAtmosphereAlone(ZoneSettings& zones);

}  // namespace tarnview
