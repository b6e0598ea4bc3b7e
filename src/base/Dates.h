#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnview {

/// A calendar date as its day number: days since 30 December 1899. 0 is "no date". 36951 is 1 March
/// 2001.
using Date = std::int32_t;
inline constexpr Date kNoDate = 0;

/// Days and months outside their range run over into the next month or year (31 February is 2 or 3
/// March).
Date MakeDate(int year, int month, int day);

/// "yyyy-mm-dd"; "" for no date.
std::string DateText(Date date);
/// "dd-mmm-yyyy", as windows show it: "18-Sep-2001"; "" for no date.
std::string DayText(Date date);

/// The date in a text such as "18-Sep-2001", "18-Sep-01", "18 Sep 2001", "2001-09-18" or
/// "18/09/2001" (day first; month first where only that is a date). A year of two digits is 2000 to
/// 2029 or 1930 to 1999.
std::optional<Date> ParseDate(std::string_view text);

Date StringToDate(std::string_view text, Date fallback);

}  // namespace tarnview
