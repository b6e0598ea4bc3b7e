#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Clock.h"
#include "model/clsLogDataItems.h"
#include "presets/clsScatterGraphPreset.h"

namespace tarnview {

// A .sca file: one preset, as users exchange them.

inline constexpr const char* kScatterGraphPresetFilter = "Preset Scatter Graph files (*.sca)|*.sca";

std::string ScatterGraphPresetFileText(const clsScatterGraphPreset& preset, bool blnWriteFamily,
                                       const Moment& now);

/// Nothing where the text holds no preset. The family is 0 where the text names none. The lines of
/// a filter may stand anywhere; its lower bound is checked against the items. Whether a preset is
/// drawn with a log is not read back: that belongs to the user's own list.
std::optional<clsScatterGraphPreset> ReadScatterGraphPresetFile(std::string_view text,
                                                                const clsLogDataItems& objItems);

}  // namespace tarnview
