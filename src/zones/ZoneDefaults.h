#pragma once

#include <vector>

#include "base/MessageTable.h"
#include "model/OpenLog.h"
#include "model/Settings.h"

namespace tarnview {

/// Gives zone settings the user's own chip where the file does not say which chip they are of.
/// Returns the messages about what was assumed; `silent`, or the setting "Silent Defaults", keeps
/// them back.
std::vector<Message> ApplyZoneDefaults(LoadedZones& zones, const Settings& settings, bool silent);

}  // namespace tarnview
