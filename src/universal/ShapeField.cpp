#include "universal/ShapeField.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "universal/TimeText.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

constexpr std::string_view kNoValues[] = {"-",    "--",   "---",  "nan", "-nan", "n/a", "na",
                                          "#n/a", "null", "none", "inf", "-inf", "?"};

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsGap(char c) { return c == ' ' || c == '\t'; }

std::string_view TrimGaps(std::string_view text) {
  while (!text.empty() && IsGap(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsGap(text.back())) text.remove_suffix(1);
  return text;
}

/// Between quotes blanks may stand.
void SplitAtGaps(std::string_view line, bool quoted, std::vector<std::string_view>& fields) {
  for (;;) {
    line = TrimGaps(line);
    if (line.empty()) return;
    const auto closing = quoted && line[0] == '"' ? line.find('"', 1) : line.npos;
    const auto end =
        std::min(line.find_first_of(" \t", closing == line.npos ? 0 : closing), line.size());
    const bool bare = closing != line.npos && closing + 1 == end;
    fields.push_back(bare ? line.substr(1, end - 2) : line.substr(0, end));
    line.remove_prefix(end);
  }
}

/// The length of the field that a line starts with.
std::size_t FieldLength(std::string_view line, const FieldForm& form) {
  std::size_t from = 0;
  const auto first = line.find_first_not_of(" \t");
  if (form.quoted && first != std::string_view::npos && line[first] == '"') {
    const auto closing = line.find('"', first + 1);
    if (closing != std::string_view::npos) from = closing;
    while (from + 1 < line.size() && closing != std::string_view::npos &&
           line[from + 1] == '"') {  // "" within
      const auto next = line.find('"', from + 2);
      if (next == std::string_view::npos) break;
      from = next;
    }
  }
  return std::min(line.find(form.delimiter, from), line.size());
}

std::string_view Bare(std::string_view field, bool quoted) {
  field = TrimGaps(field);
  if (quoted && field.size() >= 2 && field.front() == '"' && field.back() == '"')
    field = TrimGaps(field.substr(1, field.size() - 2));
  return field;
}

/// Digits in groups of three behind the first, set off by `sign`: "1,234,567".
bool Grouped(std::string_view whole, char sign) {
  const auto first = whole.find(sign);
  if (first == 0 || first > 3 || whole[0] == '0') return false;
  for (std::size_t at = first; at < whole.size(); at += 4) {
    if (whole[at] != sign || whole.size() - at < 4) return false;
    if (!std::all_of(whole.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                     whole.begin() + static_cast<std::ptrdiff_t>(at) + 4, IsDigit))
      return false;
  }
  return true;
}

/// The text with "." and no groups; false where it has a sign too many.
bool Simplify(std::string_view text, char decimalSign, std::string& simple) {
  const char groupSign = decimalSign == '.' ? ',' : '.';
  const auto point = text.find(decimalSign);
  const std::string_view whole = text.substr(0, point);
  if (whole.find(groupSign) != std::string_view::npos && !Grouped(whole, groupSign)) return false;
  for (const char c : whole)
    if (c != groupSign) simple += c;
  if (point == std::string_view::npos) return true;
  simple += '.';
  simple += text.substr(point + 1);
  return text.find(groupSign, point) == std::string_view::npos;
}

constexpr bool IsOfNumber(char c) {
  return IsDigit(c) || c == '.' || c == ',' || c == '+' || c == '-';
}

/// Where a number may end: at the first sign that stands in none. "E" counts where digits follow.
std::size_t EndOfNumber(std::string_view text) {
  for (std::size_t at = 0;;) {
    while (at < text.size() && IsOfNumber(text[at])) ++at;
    const bool exponent = at > 0 && at + 1 < text.size() && (text[at] == 'e' || text[at] == 'E') &&
                          std::string_view("0123456789+-").find(text[at + 1]) != text.npos;
    if (!exponent) return at;
    ++at;
  }
}

/// What stands behind a number is nothing or a unit; one of a single letter only behind a blank.
bool MayStandBehind(std::string_view unit, bool apart) {
  if (unit.empty()) return true;
  return unit[0] != ':' && (apart || unit.size() > 1 || !IsLetter(unit[0])) && IsUnit(unit);
}

/// The value of digits with at most one point and an exponent.
std::optional<double> ValueOf(const std::string& simple) {
  if (simple.empty() || (!IsDigit(simple[0]) && simple[0] != '.') || !IsNumeric(simple))
    return std::nullopt;
  return StringToDouble(simple);
}

}  // namespace

std::vector<std::string_view> SplitShapeLine(std::string_view line, const FieldForm& form) {
  std::vector<std::string_view> fields;
  if (line.empty()) return fields;
  if (form.delimiter == ' ') {
    SplitAtGaps(line, form.quoted, fields);
    return fields;
  }
  for (;;) {
    const std::size_t length = FieldLength(line, form);
    fields.push_back(Bare(line.substr(0, length), form.quoted));
    if (length == line.size()) return fields;
    line.remove_prefix(length + 1);
  }
}

std::optional<FieldNumber> ReadShapeNumber(std::string_view text, char decimalSign) {
  text = TrimGaps(text);
  const auto end = EndOfNumber(text);
  const std::string_view unit = TrimGaps(text.substr(end));
  if (end == 0 || end > 40 || !MayStandBehind(unit, end < text.size() && IsGap(text[end])))
    return std::nullopt;
  text = text.substr(0, end);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty() || (!IsDigit(text[0]) && text[0] != decimalSign)) return std::nullopt;
  std::string simple;
  if (!Simplify(text, decimalSign, simple)) return std::nullopt;
  const auto value = ValueOf(simple);
  if (!value) return std::nullopt;
  FieldNumber number{*value, 0, unit};
  if (negative) number.value = -number.value;
  const auto point = simple.find('.');
  for (std::size_t at = point;
       at != std::string::npos && ++at < simple.size() && IsDigit(simple[at]);)
    ++number.places;
  return number;
}

bool IsNoValue(std::string_view text) {
  if (text.empty() || IsDigit(text[0])) return false;  // as nearly all fields of a log
  if (text.size() == 11 && text.starts_with("-21474836"))
    return true;  // just above the least of 32 bits
  if (text.size() <= 8 && text.find_first_of("-?") != text.npos &&
      text.find_first_not_of("-./?") == text.npos)
    return true;
  return std::any_of(std::begin(kNoValues), std::end(kNoValues),
                     [&](std::string_view token) { return SameIgnoringCase(token, text); });
}

std::vector<std::string_view> NoValueTexts() {
  return {std::begin(kNoValues), std::end(kNoValues)};
}

FieldKind KindOfField(std::string_view field, char decimalSign) {
  if (field.empty()) return FieldKind::Empty;
  if (IsNoValue(field)) return FieldKind::NoValue;
  if (ReadShapeNumber(field, decimalSign)) return FieldKind::Number;
  if (ReadTimeText(field)) return FieldKind::Time;
  return FieldKind::Text;
}

}  // namespace tarnview
