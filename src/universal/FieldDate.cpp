#include "universal/FieldDate.h"

#include <algorithm>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// "y", "m", "d" stand for a digit of a year, month, day; "N" for a letter of a month's name; the
/// rest for itself.
constexpr std::string_view kDateForms[] = {"yyyy-mm-dd", "yyyy/mm/dd", "dd-NNN-yyyy", "dd/mm/yyyy"};
constexpr std::string_view kTimeForm = "hh:nn:ss";
constexpr std::string_view kMonths = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";

bool Fits(std::string_view text, std::string_view form) {
  return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char c, char wanted) {
    if (wanted >= 'a' && wanted <= 'z') return IsDigit(c);
    return wanted == 'N' || c == wanted;
  });
}

/// The digits of a text that stand where its form has a letter.
int Part(std::string_view text, std::string_view form, char letter) {
  int number = 0;
  for (std::size_t i = 0; i < form.size(); ++i)
    if (form[i] == letter) number = number * 10 + (text[i] - '0');
  return number;
}

/// 1 to 12; 0 for no month.
int MonthOf(std::string_view text, std::string_view form) {
  const auto name = form.find("NNN");
  if (name == std::string_view::npos) return Part(text, form, 'm');
  const auto at = kMonths.find(Upper(text.substr(name, 3)));
  if (at == std::string_view::npos || at % 3 != 0) return 0;
  return static_cast<int>(at / 3) + 1;
}

std::optional<Date> ParseDay(std::string_view text) {
  for (const auto form : kDateForms) {
    if (!Fits(text, form)) continue;
    const int year = Part(text, form, 'y'), month = MonthOf(text, form),
              day = Part(text, form, 'd');
    if (month < 1 || month > 12 || day < 1 || year < 100) return std::nullopt;
    const bool inMonth = day <= MakeDate(year, month + 1, 1) - MakeDate(year, month, 1);
    if (inMonth) return std::optional(MakeDate(year, month, day));
    return std::nullopt;
  }
  return std::nullopt;
}

/// 0 for no fraction; nothing for what is none.
std::optional<double> ParseFraction(std::string_view text) {
  if (text.empty()) return 0;
  if (text.size() < 2 || text[0] != '.' || !std::all_of(text.begin() + 1, text.end(), IsDigit))
    return std::nullopt;
  return ValDouble(text);
}

std::optional<FieldMoment> ParseTime(std::string_view text) {
  const std::string_view whole = text.substr(0, kTimeForm.size());
  if (!Fits(whole, kTimeForm)) return std::nullopt;
  const int hour = Part(whole, kTimeForm, 'h'), minute = Part(whole, kTimeForm, 'n'),
            second = Part(whole, kTimeForm, 's');
  const auto fraction = ParseFraction(text.substr(whole.size()));
  if (hour > 23 || minute > 59 || second > 59 || !fraction) return std::nullopt;
  return FieldMoment{hour * 3600 + minute * 60 + second, *fraction};
}

}  // namespace

std::optional<FieldMoment> ParseFieldMoment(std::string_view text) {
  constexpr std::int64_t kSecondsPerDay = 86400;
  text = Trim(text);
  const auto blank = text.find(' ');
  const auto day = ParseDay(text.substr(0, blank));
  if (!day) return ParseTime(text);
  FieldMoment moment{*day * kSecondsPerDay, 0};
  if (blank == std::string_view::npos) return moment;
  const auto time = ParseTime(text.substr(blank + 1));
  if (!time) return std::nullopt;
  moment.seconds += time->seconds;
  moment.fraction = time->fraction;
  return moment;
}

}  // namespace tarnview
