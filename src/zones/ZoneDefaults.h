#pragma once

#include <vector>

#include "model/OpenLog.h"
#include "model/Settings.h"

namespace tarnview {

/// Gives zone settings the user's own chip where the file does not say which chip they are of. Returns the messages
/// (7 engine size, 8 chip date, 9 atmospheric pressure); `silent`, or the setting "Silent Defaults", keeps them back.
std::vector<int> ApplyZoneDefaults(LoadedZones& zones, const Settings& settings, bool silent);

}  // namespace tarnview
