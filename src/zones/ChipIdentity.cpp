#include "zones/ChipIdentity.h"

#include <optional>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

constexpr ChipType kChipTypes[] = {
    {"1.6 Mk1", 1.6, 1}, {"1.6 Mk2", 1.6, 2}, {"1.8 Mk1", 1.8, 2}, {"1.8 Mk2 OBDII", 1.8, 3}};
constexpr const ChipType& kOtherType = kChipTypes[2];

constexpr std::string_view kMonths[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                        "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

int MonthIn(std::string_view text) {
  const std::string upper = Upper(text);
  for (int month = 1; month <= 12; ++month)
    if (upper.find(kMonths[month - 1]) != std::string::npos) return month;
  return 0;
}

std::string_view From(std::string_view text, std::size_t start, std::size_t length) {
  if (start < text.size()) return text.substr(start, length);
  return std::string_view();
}

std::string_view Last(std::string_view text, std::size_t length) {
  if (text.size() > length) return text.substr(text.size() - length);
  return text;
}

/// The date by position: "18-Sep-2001" and "18-Sep-01" with hyphens, "18Sep2001" without.
std::optional<Date> DateByPosition(std::string_view text) {
  const bool hyphens = text.find('-') != std::string_view::npos;
  const int day = StringToLong(From(text, 0, 2));
  const int month = MonthIn(From(text, hyphens ? 3 : 2, 3));
  const bool shortYear = hyphens && text.size() <= 9;
  int year = StringToLong(Last(text, 4));
  if (shortYear) year = 2000 + StringToLong(Last(text, 2));
  if (year == 0 || month == 0 || day == 0) return std::nullopt;
  return MakeDate(year, month, day);
}

}  // namespace

std::string_view EngineSizeText(double size) {
  if (size == 1.8) return "1.8";
  return "1.6";
}

double EngineSizeIn(std::string_view text) {
  if (text == "1.8") return 1.8;
  return 1.6;
}

int ValidateChipVersion(std::string_view text) {
  const int version = StringToLong(text);
  if (version >= 1 && version < 4) return version;
  return 2;
}

Date ParseChipDate(std::string_view text, Date defaultDate) {
  text = Trim(text);
  if (!text.empty() && (text.front() == 'X' || text.front() == 'x')) text.remove_prefix(1);
  if (const auto valid = ParseDate(text)) return *valid;
  return DateByPosition(text).value_or(defaultDate);
}

std::span<const ChipType> ChipTypes() { return kChipTypes; }

std::string_view SetChipTypeCombo(double engineSize, int chipVersion) {
  for (const ChipType& type : kChipTypes)
    if (type.dblEngineSize == engineSize && type.intChipVersion == chipVersion) return type.text;
  return kOtherType.text;
}

const ChipType& DecipherChipType(std::string_view text) {
  for (const ChipType& type : kChipTypes)
    if (type.text == text) return type;
  return kOtherType;
}

}  // namespace tarnview
