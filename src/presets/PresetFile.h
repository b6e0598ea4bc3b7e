#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Clock.h"
#include "model/IniFile.h"

namespace tarnview {

// What the files that users exchange have in common: a banner, the date, and the record of one
// preset.

/// The number of the one preset of a file.
inline constexpr int kFilePresetNo = 1;

/// The two lines that tell one kind of file from the other.
struct PresetFileLines {
  const char* banner;
  const char* details;  ///< the record follows it
};

std::string PresetFileText(const PresetFileLines& lines, const Moment& now,
                           const IniWriter& record);
/// The record's lines, in no section; nothing where the line before them is missing. The banner is
/// not checked.
std::optional<IniTable> ReadPresetFile(const PresetFileLines& lines, std::string_view text);

}  // namespace tarnview
