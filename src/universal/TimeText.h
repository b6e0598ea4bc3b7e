#pragma once

#include <optional>
#include <string_view>

#include "universal/FieldDate.h"

namespace tarnview {

/// What a text of a time holds.
struct TimeText {
  FieldMoment moment;  ///< of a clock alone: since midnight
  bool date = false;   ///< a day stands in it
  bool clock = false;  ///< hours and minutes, or minutes and seconds, stand in it
};

/// A date, a clock, or both, as loggers of today write them: "2026-03-15", "2026/03/15",
/// "15.3.2026", "15/03/2026" (month first where only that is a date), "15-Mar-2026"; "T" or blanks;
/// "22:34:39.62814", "9:05", "05:12.7" (minutes and seconds, by the fraction), a word AM or PM, "Z"
/// or "+01:00", which is let be; "Tue Nov 24 14:05:09 GMT 2026". Nothing for any other text.
std::optional<TimeText> ReadTimeText(std::string_view text);

}  // namespace tarnview
