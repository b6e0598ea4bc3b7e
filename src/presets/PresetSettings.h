#pragma once

#include <functional>
#include <vector>

#include "model/IniFile.h"
#include "model/clsLogDataItems.h"
#include "presets/clsSampleGraphPreset.h"
#include "presets/clsScatterGraphPreset.h"

namespace tarnview {

/// Told once for each preset that names data items which no log has.
using TellUnknownItems = std::function<void(const std::vector<int>& items)>;

// The presets of the settings file: those of its present sections, and behind them those of older
// ones, which are read and never written. A present section ends at the first number without a
// name.

void ReadSamplePresets(const IniTable& table, const TellUnknownItems& tell,
                       clsSampleGraphPresets& presets);
void ReadScatterPresets(const IniTable& table, const clsLogDataItems& fixedItems,
                        const clsLogDataItems& universalItems, const TellUnknownItems& tell,
                        clsScatterGraphPresets& presets);

/// One with no name is written as "New Preset", since a reader would stop there.
void WriteSamplePresets(const clsSampleGraphPresets& presets, IniWriter& file);
void WriteScatterPresets(const clsScatterGraphPresets& presets, IniWriter& file);

/// Adds the presets of the older sections "Preset Graph Series" and "Preset Scatter Graphs".
void ReadOldSamplePresets(const IniTable& table, clsSampleGraphPresets& presets);
void ReadOldScatterPresets(const IniTable& table, const clsLogDataItems& items,
                           clsScatterGraphPresets& presets);

}  // namespace tarnview
