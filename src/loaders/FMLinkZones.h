#pragma once

#include <string_view>

#include "fields/TextLines.h"
#include "loaders/LoadProgress.h"
#include "model/OpenLog.h"

namespace tarnview {

// The zone sections of a log. What is wrong in them raises a RuntimeError; what was read till then
// stays.

/// Fills the zones up from the rows of the zone section. The last line read is still to be looked
/// at by ReadChanges.
void ReadZoneSection(TextLines& lines, ZoneSettings& zones, LoadProgress& progress);

/// The same as a benchmark takes it: cells by position, whatever stands in them, and no zone needs
/// to be known.
void ReadBenchmarkSection(TextLines& lines, ZoneSettings& zones);

/// Reads the settings line and the lambda/knock changes. Where there are none, each change is the
/// zone's own value.
void ReadChangesSection(TextLines& lines, LoadedZones& zones, LoadProgress& progress);

/// The settings line: " ATM:  101 kPa       1.8   18-Sep-2001" and, of old, " ATM:  101  MK-II
/// 18-Sep-01".
void ParseATMLine(std::string_view line, LoadedZones& zones);

}  // namespace tarnview
