#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace tarnview {

/// The eight digits (as 0 to 9) of a number below 10^8, zeros in front, the first in the lowest
/// byte: two fours, then four pairs, then all, side by side in a word.
constexpr std::uint64_t EightDigitsOf(std::uint32_t number) {
  // A product and a shift are a division by 100 below 10000, and by 10 below 100.
  const std::uint64_t fours = number / 10000 + (std::uint64_t{number % 10000} << 32);
  const std::uint64_t hundreds = fours * 10486 >> 20 & 0x0000007F0000007F;
  const std::uint64_t pairs = hundreds + ((fours - hundreds * 100) << 16);
  const std::uint64_t tens = pairs * 103 >> 10 & 0x000F000F000F000F;
  return tens + ((pairs - tens * 10) << 8);
}

/// The text of a number with a comma behind it, in two words: written in two steps, whatever its
/// length.
class ShortNumberText {
 public:
  /// PutBefore's number of `places` decimals; false for one that is too long (9 characters are
  /// not).
  bool Set(std::int64_t whole, int places) {
    constexpr std::int64_t kTooLong = 100'000'000;
    constexpr std::uint64_t kZeros = 0x3030303030303030;
    if (std::endian::native != std::endian::little || whole <= -kTooLong || whole >= kTooLong ||
        places > 7)
      return false;
    const auto digits = EightDigitsOf(static_cast<std::uint32_t>(std::abs(whole)));
    const int zeros = std::min(std::countr_zero(digits) / 8, 7 - places);  // in front of all
    const std::uint64_t text = (digits | kZeros) >> 8 * zeros;
    int length = 8 - zeros;
    head_ = text;
    if (places > 0) {
      const int toPoint = 8 * (length++ - places);
      const std::uint64_t before = (std::uint64_t{1} << toPoint) - 1;
      head_ = (text & before) | std::uint64_t{'.'} << toPoint | (text & ~before) << 8;
    }
    if (whole < 0) {
      head_ = head_ << 8 | '-';
      ++length;
    }
    last_ = static_cast<std::uint16_t>((digits >> 56 | '0') + kComma);
    beforeLast_ = static_cast<std::size_t>(length - 1);
    return length <= 9;
  }

  /// 10 bytes at `to` are written. Answers where the text ends.
  char* Write(char* to) const {
    std::memcpy(to, &head_, sizeof head_);
    std::memcpy(to + beforeLast_, &last_, sizeof last_);
    return to + beforeLast_ + 2;
  }

 private:
  static constexpr std::uint16_t kComma = ',' << 8;

  std::uint64_t head_ = 0;       ///< the characters, up to 8 of them
  std::uint16_t last_ = kComma;  ///< the last one, and the comma
  std::size_t beforeLast_ = 0;   ///< characters in front of it
};

}  // namespace tarnview
