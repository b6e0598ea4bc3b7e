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

namespace detail {

inline constexpr TextWord kEachByte = 0x0101010101010101, kHighBits = 0x8080808080808080, kLowBits = ~kHighBits;

/// The high bit of each byte that is `c`.
constexpr TextWord BytesThatAre(TextWord word, char c) {
  const TextWord difference = word ^ (kEachByte * static_cast<unsigned char>(c));
  return ~(((difference & kLowBits) + kLowBits) | difference) & kHighBits;
}
/// The high bit of each byte that is no digit.
constexpr TextWord BytesThatAreNoDigits(TextWord word) {
  const TextWord digits = word ^ (kEachByte * '0');
  return (((digits & kLowBits) + kEachByte * (0x80 - 10)) | digits) & kHighBits;
}
/// All bits below the byte `index`, 0 to 7.
constexpr TextWord BitsBelow(int index) { return (TextWord{1} << (8 * index)) - 1; }

/// Eight digits (as 0 to 9), the first in the lowest byte: pairs, then fours, then all.
constexpr std::uint32_t EightDigits(TextWord digits) {
  constexpr TextWord kPairs = 0x000000FF000000FF;
  digits = digits * 10 + (digits >> 8);
  return static_cast<std::uint32_t>(((digits & kPairs) * (100 + (TextWord{1000000} << 32)) +
                                     (digits >> 16 & kPairs) * (1 + (TextWord{10000} << 32))) >>
                                    32);
}

/// Takes the point out of the word and says how many characters stand behind it. False where there is more than one.
inline bool TakePoint(TextWord& word, int& places) {
  const TextWord points = BytesThatAre(word, '.');
  places = 0;
  if (points == 0) return true;
  if ((points & (points - 1)) != 0) return false;
  const int at = std::countr_zero(points) / 8;
  const TextWord before = word & BitsBelow(at);
  word = (word & ~BitsBelow(at) & ~(TextWord{0xFF} << (8 * at))) | before << 8 | ' ';
  places = 7 - at;
  return true;
}

}  // namespace detail

/// Blanks, a sign, digits with at most one point, blanks. False for any other text, as for one without a digit.
inline bool ReadWord(TextWord word, double& value) {
  using namespace detail;
  if constexpr (!kWordsAreReadable) return false;
  const TextWord filled = ~BytesThatAre(word, ' ') & kHighBits;
  if (filled == 0) return false;
  if (const int behind = std::countl_zero(filled) / 8)
    word = word << (8 * behind) | (kEachByte * ' ' & BitsBelow(behind));
  int places = 0;
  if (!TakePoint(word, places)) return false;

  TextWord digits = word ^ (kEachByte * '0');
  bool negative = false;
  if (const TextWord others = BytesThatAreNoDigits(word)) {
    const int at = 7 - std::countl_zero(others) / 8;  // the character before the digits
    if (7 - at < std::max(places, 1)) return false;
    const auto before = static_cast<char>(word >> (8 * at) & 0xFF);
    negative = before == '-';
    if (before != ' ' && before != '-' && before != '+') return false;
    if (((word ^ kEachByte * ' ') & BitsBelow(at)) != 0) return false;
    digits = digits >> (8 * at) >> 8 << (8 * at) << 8;
  }
  const auto whole = static_cast<std::int64_t>(EightDigits(digits));
  value = static_cast<double>(negative ? -whole : whole) / kPowersOfTen[places];  // exact by exact: the nearest double
  return true;
}

/// StringToDouble of the text before `end`, of which the eight bytes before `end` can be read.
inline double NumberBefore(const char* end, std::size_t length) {
  double value;
  if (length - 1 < kWordLength && ReadWord(WordBefore(end, length), value)) return value;
  return StringToDouble({end - length, length});
}
/// StringToLong of it.
inline std::int32_t WholeBefore(const char* end, std::size_t length) { return RoundToLong(NumberBefore(end, length)); }
/// ValDouble of it.
inline double ScannedBefore(const char* end, std::size_t length) {
  double value;
  const std::string_view text(end - length, length);
  if (length - 1 < kWordLength ? ReadWord(WordBefore(end, length), value) : detail::ReadShortNumber(text, value))
    return value;
  return ValDouble(text);
}

}  // namespace tarnview
