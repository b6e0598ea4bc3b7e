#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace tarnview {

// Text to number, tolerantly: these never fail. The decimal sign is "." whatever the locale.

/// A text is numeric when, blanks at its ends aside, all of it is a sign, digits with at most one
/// point and at least one digit, and an exponent ("1e3").
bool IsNumeric(std::string_view text);

/// The number of a numeric text, else the number at its start (blanks, sign, digits with a point;
/// no exponent), else 0. A number beyond a double is 0.
double StringToDouble(std::string_view text);
/// StringToDouble, rounded half to even; 0 outside 32 bits.
std::int32_t StringToLong(std::string_view text);
/// Always the number at the start: "1e3" is 1.
double ValDouble(std::string_view text);

// Rounding is half to even everywhere.

/// The nearest whole number, where |value| is below 2^51: two steps without a decision.
inline double WithoutFraction(double value) {
  // Adding 1.5 * 2^52 leaves no room for a fraction, and the processor rounds halves to even.
  constexpr double kNoFraction = 6755399441055744.0;
  return value + kNoFraction - kNoFraction;
}
inline double RoundHalfEven(double value) {
  if (std::fabs(value) < 2251799813685248.0) return WithoutFraction(value);
  return std::nearbyint(value);
}
/// The nearest whole number; 0 where that does not fit 32 bits or is no number.
inline std::int32_t RoundToLong(double value) {
  const double rounded = RoundHalfEven(value);
  using Limits = std::numeric_limits<std::int32_t>;
  if (rounded >= Limits::min() && rounded <= Limits::max())
    return static_cast<std::int32_t>(rounded);
  return 0;
}
/// 10^places; 0 to 15 places.
double PowerOfTen(int places);
/// Scale by 10^places, round half to even, scale back: 14.705 to two places is 14.7.
double RoundPlaces(double value, int places);

// Number to text.

/// The plain decimal text: up to 15 significant digits, no trailing zeros, "-0.5" with its 0,
/// "1E+20" when large.
std::string NumberText(double value);
/// Rounded half to even on the scaled value, always with `places` decimals: "14.70".
std::string FixedText(double value, int places);
/// Writes a number of `places` decimals, told as a whole one of the last of them, in front of
/// `end`; up to 39 bytes. Answers where it begins.
inline char* PutBefore(char* end, std::int64_t whole, int places) {
  auto rest = static_cast<std::uint64_t>(std::abs(whole));
  for (int written = 0; rest != 0 || written <= places; ++written) {
    if (written == places && places > 0) *--end = '.';
    *--end = static_cast<char>('0' + rest % 10);
    rest /= 10;
  }
  if (whole < 0) *--end = '-';
  return end;
}
/// At least `digits` digits with zeros in front, as the format "00": 5 gives "05".
std::string PaddedText(std::int64_t value, int digits);

// The fast road for the short fixed-width fields of a log, read in place.

namespace detail {

inline constexpr double kPowersOfTen[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
inline constexpr int kMostExactDigits = 15;  ///< more may not fit the 53 bits of a double

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// A text of blanks, a sign, up to 15 digits with at most one point, and blanks: whole and quick.
/// False for any other.
inline bool ReadShortNumber(std::string_view text, double& value) {
  const char* at = text.data();
  const char* end = at + text.size();
  while (at != end && IsBlank(*at)) ++at;
  const bool negative = at != end && *at == '-';
  if (at != end && (*at == '-' || *at == '+')) ++at;
  std::int64_t digits = 0;
  int count = 0, places = 0;
  bool point = false;
  for (; at != end; ++at) {
    const auto digit = static_cast<unsigned char>(*at - '0');
    if (digit <= 9) {
      digits = digits * 10 + digit;
      places += point;
      if (++count > kMostExactDigits) return false;
    } else if (*at == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  while (at != end && IsBlank(*at)) ++at;
  if (at != end || count == 0) return false;
  // Both are exact, so the quotient is the double nearest to the decimal number.
  value = static_cast<double>(negative ? -digits : digits) / kPowersOfTen[places];
  return true;
}

double StringToDoubleSlowly(std::string_view text);
double ValDoubleSlowly(std::string_view text);

}  // namespace detail

inline double StringToDouble(std::string_view text) {
  double value;
  if (detail::ReadShortNumber(text, value)) return value;
  return detail::StringToDoubleSlowly(text);
}

inline double ValDouble(std::string_view text) {
  double value;
  if (detail::ReadShortNumber(text, value)) return value;
  return detail::ValDoubleSlowly(text);
}

inline std::int32_t StringToLong(std::string_view text) {
  return RoundToLong(StringToDouble(text));
}

}  // namespace tarnview
