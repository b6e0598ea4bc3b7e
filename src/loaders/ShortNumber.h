#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/Numbers.h"

namespace tarnview {

// Numbers of up to eight characters, read as one word: a log has millions of them, and a loop over the characters
// takes several times as long. What the quick road does not know goes to the tolerant one, so the results are its own.

/// A text of up to eight characters: the last one in the highest byte, blanks in front.
using TextWord = std::uint64_t;
inline constexpr std::size_t kWordLength = sizeof(TextWord);
inline constexpr bool kWordsAreReadable = std::endian::native == std::endian::little;

/// The word of the `length` (1 to 8) characters before `end`; the eight bytes before `end` are read.
inline TextWord WordBefore(const char* end, std::size_t length) {
  constexpr TextWord kBlanks = 0x2020202020202020;
  TextWord word;
  std::memcpy(&word, end - kWordLength, kWordLength);
  const TextWord kept = ~TextWord{0} << (8 * (kWordLength - length));
  return (word & kept) | (kBlanks & ~kept);
}

/// digits / 10^places, as a text writes it.
struct ShortNumber {
  std::int64_t digits = 0;
  int places = 0;

  /// The double nearest to it: both sides of the division are exact.
  double Value() const { return static_cast<double>(digits) / detail::kPowersOfTen[places]; }
  /// RoundToLong(Value() * 10^scale), scale 0 to 4; a whole number where the text has no more places than that.
  std::int32_t Stored(int scale) const {
    constexpr std::int32_t kTens[] = {1, 10, 100, 1000, 10000};
    if (places > scale) return RoundToLong(Value() * kTens[scale]);
    const std::int64_t stored = digits * kTens[scale - places];
    return stored == static_cast<std::int32_t>(stored) ? static_cast<std::int32_t>(stored) : 0;
  }
};

namespace detail {

inline constexpr TextWord kEachByte = 0x0101010101010101, kHighBits = 0x8080808080808080, kLowBits = ~kHighBits;

/// The high bit of each byte that is `c`.
constexpr TextWord BytesThatAre(TextWord word, char c) {
  const TextWord difference = word ^ (kEachByte * static_cast<unsigned char>(c));
  return ~(((difference & kLowBits) + kLowBits) | difference) & kHighBits;
}
/// The same for the first such byte; bytes behind it may be marked too.
constexpr TextWord FirstByteThatIs(TextWord word, char c) {
  const TextWord difference = word ^ (kEachByte * static_cast<unsigned char>(c));
  return (difference - kEachByte) & ~difference & kHighBits;
}
/// The high bit of each byte that is not 0 to 9.
constexpr TextWord BytesAbove9(TextWord digits) {
  return (((digits & kLowBits) + kEachByte * (0x80 - 10)) | digits) & kHighBits;
}

/// Eight digits (as 0 to 9), the first in the lowest byte: pairs, then fours, then all.
constexpr std::uint32_t EightDigits(TextWord digits) {
  constexpr TextWord kPairs = 0x000000FF000000FF;
  digits = digits * 10 + (digits >> 8);
  return static_cast<std::uint32_t>(((digits & kPairs) * (100 + (TextWord{1000000} << 32)) +
                                     (digits >> 16 & kPairs) * (1 + (TextWord{10000} << 32))) >>
                                    32);
}

/// Moves blanks from behind the text to its front.
inline TextWord WithoutBlanksBehind(TextWord word) {
  const TextWord filled = ~BytesThatAre(word, ' ') & kHighBits;
  if (filled == 0) return word;
  const int behind = std::countl_zero(filled) / 8 * 8;
  return word << behind | (kEachByte * ' ' & ((TextWord{1} << behind) - 1));
}

/// The sign in front of the digits: all before it is blank. False for anything else.
inline bool ReadSign(TextWord word, int at, bool& negative) {
  const auto sign = static_cast<char>(word >> (8 * at) & 0xFF);
  negative = sign == '-';
  return (negative || sign == '+') && ((word ^ kEachByte * ' ') & ((TextWord{1} << (8 * at)) - 1)) == 0;
}

}  // namespace detail

/// Blanks, a sign, digits with at most one point, blanks. False for any other text, as for one without a digit.
inline bool ReadWord(TextWord word, ShortNumber& number) {
  using namespace detail;
  constexpr TextWord kBlanks = kEachByte * ' ';
  if constexpr (!kWordsAreReadable) return false;
  if (word >> 56 == ' ') word = WithoutBlanksBehind(word);

  number.places = 0;
  if (const TextWord points = FirstByteThatIs(word, '.')) {  // taken out; a second one is no digit
    const TextWord upToPoint = points ^ (points - 1);
    word = (word & ~upToPoint) | (word & upToPoint >> 8) << 8 | ' ';
    number.places = 7 - std::countr_zero(points) / 8;
  }

  TextWord digits = word ^ kEachByte * '0';
  bool negative = false;
  if (const TextWord others = BytesAbove9(digits)) {
    const int at = 7 - std::countl_zero(others) / 8;  // the character before the digits
    if (7 - at < std::max(number.places, 1)) return false;
    const TextWord before = ~(~TextWord{0xFF} << (8 * at));
    if (((word ^ kBlanks) & before) != 0 && !ReadSign(word, at, negative)) return false;
    digits &= ~before;
  }
  const auto whole = static_cast<std::int64_t>(EightDigits(digits));
  number.digits = negative ? -whole : whole;
  return true;
}

}  // namespace tarnview
