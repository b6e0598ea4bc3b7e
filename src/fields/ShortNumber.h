#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/Numbers.h"

namespace tarnview {

// Numbers of up to eight characters, read as one word: a log has millions of them, and a loop over
// the characters takes several times as long. What the quick road does not know goes to the
// tolerant one, so the results are its own.

/// A text of up to eight characters, the last one in the highest byte.
using TextWord = std::uint64_t;
inline constexpr std::size_t kWordLength = sizeof(TextWord);
inline constexpr bool kWordsAreReadable = std::endian::native == std::endian::little;

/// digits / 10^places, as a text writes it.
struct ShortNumber {
  std::int64_t digits = 0;
  int places = 0;

  /// The double nearest to it: both sides of the division are exact.
  double Value() const { return static_cast<double>(digits) / detail::kPowersOfTen[places]; }
};

namespace detail {

inline constexpr TextWord kEachByte = 0x0101010101010101, kHighBits = 0x8080808080808080,
                          kLowBits = ~kHighBits;

/// The high bit of each byte that is `c`.
constexpr TextWord BytesThatAre(TextWord word, char c) {
  const TextWord difference = word ^ (kEachByte * static_cast<unsigned char>(c));
  return ~(((difference & kLowBits) + kLowBits) | difference) & kHighBits;
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

}  // namespace detail
}  // namespace tarnview
