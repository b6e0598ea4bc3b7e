#include "base/Dates.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

namespace chr = std::chrono;

/// Days from 30 December 1899, day 0 of a Date, to 1 January 1970, day 0 of the clock.
constexpr int kDayOfEpoch = 25569;
constexpr int kFirstYear = 100, kLastYear = 9999;

constexpr std::array<std::string_view, 12> kMonths{"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                   "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                   "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};

/// Where day, month and year stand among the three parts of a text.
struct Order {
  std::size_t day, month, year;
};
/// In the order in which they are tried: day first, month first, year first and the month or the
/// day behind it.
constexpr std::array<Order, 4> kOrders{{{0, 1, 2}, {1, 0, 2}, {2, 1, 0}, {1, 2, 0}}};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Runs of digits and of letters; nothing if the text has other things than dates have, or not
/// three runs.
std::optional<std::array<std::string_view, 3>> ThreeParts(std::string_view text) {
  std::array<std::string_view, 3> parts;
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size();) {
    const auto same = IsDigit(text[at]) ? IsDigit : IsLetter;
    std::size_t end = at;
    while (end < text.size() && same(text[end])) ++end;
    if (end > at) {
      if (count == parts.size()) return std::nullopt;
      parts[count++] = text.substr(at, end - at);
      at = end;
    } else if (std::string_view(" -/.,\t").find(text[at++]) == std::string_view::npos) {
      return std::nullopt;
    }
  }
  if (count == parts.size()) return std::optional(parts);
  return std::nullopt;
}

/// -1 where the text is none.
int NumberOfDigits(std::string_view text, std::size_t most) {
  if (IsDigit(text[0]) && text.size() <= most) return StringToLong(text);
  return -1;
}

int MonthOf(std::string_view text) {
  if (IsDigit(text[0])) return NumberOfDigits(text, 2);
  const std::string name = Upper(text);
  for (std::size_t month = 0; month < kMonths.size(); ++month)
    if (name.size() >= 3 && kMonths[month].starts_with(name)) return static_cast<int>(month) + 1;
  return -1;
}

int YearOf(std::string_view text) {
  const int year = NumberOfDigits(text, 4);
  if (text.size() > 2) return year;
  if (year < 0) return -1;
  if (year < 30) return 2000 + year;
  return 1900 + year;
}

std::optional<Date> InOrder(const std::array<std::string_view, 3>& parts, const Order& order) {
  const int day = NumberOfDigits(parts[order.day], 2);
  const int month = MonthOf(parts[order.month]);
  const int year = YearOf(parts[order.year]);
  if (day < 1 || month < 1 || year < kFirstYear) return std::nullopt;
  const chr::year_month_day date{chr::year(year), chr::month(static_cast<unsigned>(month)),
                                 chr::day(static_cast<unsigned>(day))};
  if (!date.ok()) return std::nullopt;
  return MakeDate(year, month, day);
}

}  // namespace

Date MakeDate(int year, int month, int day) {
  const std::int64_t months = std::int64_t{year} * 12 + month - 1;
  const std::int64_t wholeYear = months >= 0 ? months / 12 : (months - 11) / 12;
  if (wholeYear < kFirstYear || wholeYear > kLastYear) return kNoDate;
  const chr::sys_days first{chr::year(static_cast<int>(wholeYear)) /
                            chr::month(static_cast<unsigned>(months - wholeYear * 12) + 1) / 1};
  const std::int64_t days = std::int64_t{first.time_since_epoch().count()} + day - 1 + kDayOfEpoch;
  constexpr std::int64_t kFarthest = 3'000'000;  // past the year 9999
  if (std::abs(days) >= kFarthest) return kNoDate;
  return static_cast<Date>(days);
}

std::string DateText(Date date) {
  if (date == kNoDate) return "";
  const chr::year_month_day it{chr::sys_days{chr::days{date - kDayOfEpoch}}};
  return PaddedText(static_cast<int>(it.year()), 4) + "-" +
         PaddedText(static_cast<unsigned>(it.month()), 2) + "-" +
         PaddedText(static_cast<unsigned>(it.day()), 2);
}

std::string DayText(Date date) {
  if (date == kNoDate) return "";
  constexpr std::string_view kShortMonths = "JanFebMarAprMayJunJulAugSepOctNovDec";
  const chr::year_month_day it{chr::sys_days{chr::days{date - kDayOfEpoch}}};
  const std::size_t month = static_cast<unsigned>(it.month()) - 1;
  return PaddedText(static_cast<unsigned>(it.day()), 2) + "-" +
         std::string(kShortMonths.substr(3 * month, 3)) + "-" +
         PaddedText(static_cast<int>(it.year()), 4);
}

std::optional<Date> ParseDate(std::string_view text) {
  const auto parts = ThreeParts(text);
  if (!parts) return std::nullopt;
  for (const Order& order : kOrders)
    if (const auto date = InOrder(*parts, order)) return date;
  return std::nullopt;
}

Date StringToDate(std::string_view text, Date fallback) {
  return ParseDate(text).value_or(fallback);
}

}  // namespace tarnview
