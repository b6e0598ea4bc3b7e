#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Clock.h"
#include "presets/clsSampleGraphPreset.h"

namespace tarnview {

// A .sam file: one preset, as users exchange them.

inline constexpr const char* kSampleGraphPresetFilter = "Preset Sample Graph files (*.sam)|*.sam";

std::string SampleGraphPresetFileText(const clsSampleGraphPreset& preset, bool blnWriteFamily,
                                      const Moment& now);

/// Nothing where the text holds no preset. The family is 0 where the text names none.
std::optional<clsSampleGraphPreset> ReadSampleGraphPresetFile(std::string_view text);

}  // namespace tarnview
