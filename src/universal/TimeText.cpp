#include "universal/TimeText.h"

#include <array>
#include <cstdint>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr std::string_view kMonths = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Takes digits off the front: at most `most`, at least one.
std::optional<int> TakeNumber(std::string_view& text, std::size_t most) {
  std::size_t length = 0;
  int number = 0;
  while (length < text.size() && length < most && IsDigit(text[length]))
    number = number * 10 + (text[length++] - '0');
  if (length == 0) return std::nullopt;
  text.remove_prefix(length);
  return number;
}

bool Take(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

void SkipBlanks(std::string_view& text) {
  while (Take(text, ' ')) {
  }
}

std::string_view TakeWord(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && IsLetter(text[length])) ++length;
  const std::string_view word = text.substr(0, length);
  text.remove_prefix(length);
  return word;
}

/// 1 to 12 by the first three letters; 0 for no month.
int MonthOf(std::string_view word) {
  if (word.size() < 3) return 0;
  const auto at = kMonths.find(Upper(word.substr(0, 3)));
  if (at == std::string_view::npos || at % 3 != 0) return 0;
  return static_cast<int>(at / 3) + 1;
}

std::optional<Date> DayOf(int year, int month, int day) {
  if (year < 100) year += 2000;
  if (month < 1 || month > 12 || day < 1 || day > 31 || year < 1900 || year > 2200)
    return std::nullopt;
  return MakeDate(year, month, day);
}

/// "15-Mar-2026", "15.3.2026", "2026-03-15": numbers and a month's name between two like signs.
std::optional<Date> TakeDay(std::string_view& text) {
  std::array<int, 3> parts{};
  std::string_view rest = text;
  char sign = 0;
  bool named = false, yearFirst = false;
  for (std::size_t part = 0; part < parts.size(); ++part) {
    const std::size_t before = rest.size();
    if (part == 1 && !rest.empty() && IsLetter(rest[0])) {
      parts[part] = MonthOf(TakeWord(rest));
      named = true;
    } else {
      const auto number = TakeNumber(rest, 4);
      if (!number) return std::nullopt;
      parts[part] = *number;
    }
    if (part == 0) yearFirst = before - rest.size() == 4;
    if (part == 2 && !yearFirst && before - rest.size() < 2)
      return std::nullopt;  // "1.2.3" is no date
    if (part == 2) break;
    if (rest.empty()) return std::nullopt;
    if (part == 0) sign = rest[0];
    if (std::string_view("-./ ").find(sign) == std::string_view::npos || !Take(rest, sign))
      return std::nullopt;
  }
  if (sign == ' ' && !named) return std::nullopt;
  text = rest;
  if (yearFirst) return DayOf(parts[0], parts[1], parts[2]);
  const auto dayFirst = DayOf(parts[2], parts[1], parts[0]);
  if (dayFirst || named) return dayFirst;
  return DayOf(parts[2], parts[0], parts[1]);
}

/// ".5", ",5" or ":500" behind whole seconds; 0 for none.
double TakeFraction(std::string_view& text) {
  if (text.size() < 2 || std::string_view(".,:").find(text[0]) == std::string_view::npos ||
      !IsDigit(text[1]))
    return 0;
  text.remove_prefix(1);
  double fraction = 0, place = 1;
  while (!text.empty() && IsDigit(text[0])) {
    fraction = fraction * 10 + (text[0] - '0');
    place *= 10;
    text.remove_prefix(1);
  }
  return fraction / place;
}

/// A word AM or PM behind a clock moves its hours; a time zone is let be.
void TakeEnd(std::string_view& text, int& hours) {
  SkipBlanks(text);
  std::string_view rest = text;
  const std::string word = Upper(TakeWord(rest));
  if (word == "AM" && hours == 12) hours = 0;
  if (word == "PM" && hours < 12) hours += 12;
  if (word == "AM" || word == "PM" || word == "Z" || word == "GMT" || word == "UTC") text = rest;
  if (text.starts_with('+') || (text.starts_with('-') && text.size() > 2)) {
    text.remove_prefix(1);
    while (!text.empty() && (IsDigit(text[0]) || text[0] == ':')) text.remove_prefix(1);
  }
  SkipBlanks(text);
}

std::optional<FieldMoment> TakeClock(std::string_view& text) {
  const auto first = TakeNumber(text, 4);
  if (!first || !Take(text, ':')) return std::nullopt;
  const auto second = TakeNumber(text, 2);
  if (!second || *second > 59) return std::nullopt;
  std::optional<int> third;
  if (text.size() > 1 && text[0] == ':' && IsDigit(text[1])) {
    text.remove_prefix(1);
    third = TakeNumber(text, 2);
    if (*third > 60) return std::nullopt;
  }
  const bool minutesFirst = !third && (text.starts_with('.') || text.starts_with(','));
  const double fraction = TakeFraction(text);
  int hours = minutesFirst ? 0 : *first;
  TakeEnd(text, hours);
  if (minutesFirst) return FieldMoment{*first * 60 + *second, fraction};
  return FieldMoment{std::int64_t{hours} * 3600 + *second * 60 + third.value_or(0), fraction};
}

/// "Tue Nov 24 14:05:09 GMT 2026"
std::optional<TimeText> ReadNamedDay(std::string_view text) {
  if (TakeWord(text).size() != 3 || !Take(text, ' ')) return std::nullopt;
  const int month = MonthOf(TakeWord(text));
  SkipBlanks(text);
  const auto day = TakeNumber(text, 2);
  SkipBlanks(text);
  auto clock = TakeClock(text);
  if (!day || !clock) return std::nullopt;
  TakeWord(text);
  SkipBlanks(text);
  const auto year = TakeNumber(text, 4);
  if (!year) return std::nullopt;
  const auto date = DayOf(*year, month, *day);
  if (!date || !text.empty()) return std::nullopt;
  clock->seconds += *date * kSecondsPerDay;
  return TimeText{*clock, true, true};
}

}  // namespace

std::optional<TimeText> ReadTimeText(std::string_view text) {
  text = Trim(text);
  if (text.size() < 4) return std::nullopt;
  if (IsLetter(text[0])) return ReadNamedDay(text);
  if (!IsDigit(text[0])) return std::nullopt;
  TimeText read;
  std::string_view rest = text;
  if (const auto day = TakeDay(rest)) {
    read.date = true;
    read.moment.seconds = *day * kSecondsPerDay;
    text = rest;
    if (!Take(text, 'T')) SkipBlanks(text);
    if (text.empty()) return read;
  }
  const auto clock = TakeClock(text);
  if (!clock || !text.empty()) return std::nullopt;
  read.clock = true;
  read.moment.seconds += clock->seconds;
  read.moment.fraction = clock->fraction;
  return read;
}

}  // namespace tarnview
