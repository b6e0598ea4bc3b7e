#include "base/Numbers.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "base/Text.h"

namespace tarnview {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

const char* SkipBlanks(const char* at, const char* end) {
  while (at != end && detail::IsBlank(*at)) ++at;
  return at;
}

const char* SkipDigits(const char* at, const char* end) {
  while (at != end && IsDigit(*at)) ++at;
  return at;
}

/// The number that a text starts with.
struct Scan {
  const char* digits = nullptr;  ///< behind the sign
  const char* end = nullptr;     ///< behind the last digit or point
  bool negative = false;
  bool found = false;  ///< at least one digit
};

Scan ScanNumber(std::string_view text) {
  const char* end = text.data() + text.size();
  const char* at = SkipBlanks(text.data(), end);
  Scan scan;
  scan.negative = at != end && *at == '-';
  if (at != end && (*at == '-' || *at == '+')) ++at;
  scan.digits = at;
  at = SkipDigits(at, end);
  auto count = at - scan.digits;
  if (at != end && *at == '.') {
    const char* behind = SkipDigits(at + 1, end);
    count += behind - at - 1;
    at = behind;
  }
  scan.end = at;
  scan.found = count > 0;
  return scan;
}

/// Behind the exponent at `at`; `at` itself if none is there.
const char* SkipExponent(const char* at, const char* end) {
  if (at == end || (*at != 'e' && *at != 'E')) return at;
  const char* digits = at + 1;
  if (digits != end && (*digits == '-' || *digits == '+')) ++digits;
  const char* behind = SkipDigits(digits, end);
  if (behind == digits) return at;
  return behind;
}

/// Behind all of a numeric text's number; nullptr if the text is not numeric.
const char* EndOfNumeric(std::string_view text, const Scan& scan) {
  if (!scan.found) return nullptr;
  const char* end = text.data() + text.size();
  const char* behind = SkipExponent(scan.end, end);
  if (SkipBlanks(behind, end) == end) return behind;
  return nullptr;
}

double Convert(const Scan& scan, const char* end) {
  if (!scan.found) return 0;
  double value = 0;
  if (std::from_chars(scan.digits, end, value).ec != std::errc()) return 0;
  if (scan.negative) return -value;
  return value;
}

/// Scientific notation with the point and the trailing zeros gone: "-123" and the exponent of its
/// first digit.
struct Digits {
  std::string sign;
  std::string digits;
  int exponent = 0;
};

Digits SignificantDigits(double value) {
  char buffer[40];
  const auto written =
      std::to_chars(buffer, std::end(buffer), std::fabs(value), std::chars_format::scientific, 14);
  const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
  const auto e = text.find('e');
  Digits result;
  result.sign = TextIf(value < 0, "-");
  result.digits = std::string(text.substr(0, 1)) + std::string(text.substr(2, e - 2));
  result.digits.erase(result.digits.find_last_not_of('0') + 1);
  result.exponent = StringToLong(text.substr(e + 1));
  return result;
}

}  // namespace

bool IsNumeric(std::string_view text) { return EndOfNumeric(text, ScanNumber(text)) != nullptr; }

double detail::StringToDoubleSlowly(std::string_view text) {
  const Scan scan = ScanNumber(text);
  const char* end = EndOfNumeric(text, scan);
  if (!end) end = scan.end;
  return Convert(scan, end);
}

double detail::ValDoubleSlowly(std::string_view text) {
  const Scan scan = ScanNumber(text);
  return Convert(scan, scan.end);
}

double PowerOfTen(int places) {
  return detail::kPowersOfTen[std::clamp(places, 0,
                                         static_cast<int>(std::size(detail::kPowersOfTen)) - 1)];
}

double RoundPlaces(double value, int places) {
  const double scale = PowerOfTen(places);
  const double scaled = value * scale;
  if (std::isfinite(scaled)) return RoundHalfEven(scaled) / scale;
  return value;
}

std::string NumberText(double value) {
  if (value == 0 || !std::isfinite(value)) return "0";
  constexpr int kMostPlaces = 15;
  auto [sign, digits, exponent] = SignificantDigits(value);
  const int count = static_cast<int>(digits.size());
  if (exponent >= kMostPlaces || count - 1 - exponent > kMostPlaces) {
    if (count > 1) digits.insert(1, ".");
    return sign + digits + (exponent < 0 ? "E-" : "E+") + PaddedText(std::abs(exponent), 2);
  }
  if (exponent < 0)
    return sign + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= whole) return sign + digits + std::string(whole - digits.size(), '0');
  return sign + digits.insert(whole, ".");
}

std::string FixedText(double value, int places) {
  if (std::isnan(value)) return "0";
  places = std::clamp(places, 0, detail::kMostExactDigits);
  const double scaled = RoundHalfEven(value * PowerOfTen(places));
  char buffer[400];  // the largest double has 309 digits
  if (!(std::fabs(scaled) < 1e18)) {
    const auto written =
        std::to_chars(buffer, std::end(buffer), value, std::chars_format::fixed, places);
    return {buffer, written.ptr};
  }
  const auto whole = static_cast<std::int64_t>(scaled);
  char* const end = buffer + 40;
  return {PutBefore(end, whole, places), end};
}

std::string PaddedText(std::int64_t value, int digits) {
  std::string text = std::to_string(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  const std::size_t wanted = static_cast<std::size_t>(std::max(digits, 1)) + sign;
  if (text.size() < wanted) text.insert(sign, wanted - text.size(), '0');
  return text;
}

}  // namespace tarnview
