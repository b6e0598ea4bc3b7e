#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/Numbers.h"

namespace tarnview {

// Numbers of short fields, read at the speed of a log of millions of them: eight characters at a time, as one word.

/// How long a short field is at most, and how far behind its start FieldWord reads.
inline constexpr std::size_t kShortField = 8;

/// A field of 1 to kShortField characters, the last one in the highest byte and zeros in the bytes that are left.
/// kShortField bytes must be there to read.
inline std::uint64_t FieldWord(std::string_view field) {
  std::uint64_t word;
  std::memcpy(&word, field.data(), sizeof word);
  return word << (kShortField - field.size()) * 8;
}

/// The number of a field that is a sign or none, digits and at most one point, and nothing else: `figures` / `power` is
/// the double nearest to it. False for any other field: that one is for ValDouble.
inline bool ReadFieldWord(std::uint64_t word, std::size_t length, std::int32_t& figures, double& power) {
  if constexpr (std::endian::native != std::endian::little) return false;
  constexpr std::uint64_t kEach = 0x0101010101010101u, kTops = kEach * 0x80;
  constexpr std::uint64_t kPoint = '.' ^ '0', kMinus = '-' ^ '0';
  const int unused = static_cast<int>(kShortField - length) * 8;

  // Digits become 0 to 9; 0x76 lifts all else to a set top bit.
  std::uint64_t digits = word ^ kEach * '0' << unused;
  std::uint64_t others = (((digits & ~kTops) + kEach * 0x76) | digits) & kTops;
  power = 1;
  bool negative = false;
  if (others) {
    int at = std::countr_zero(others) - 7;
    if (at == unused && (digits >> at & 0xFF) == kMinus) {
      negative = true;
      digits &= ~(std::uint64_t{0xFF} << at);
      others &= others - 1;
      --length;
      if (others) at = std::countr_zero(others) - 7;
    }
    if (others) {
      if ((others & (others - 1)) != 0 || (digits >> at & 0xFF) != kPoint) return false;
      // The digits ahead of the point move up by one, over it.
      digits = (digits & ((std::uint64_t{1} << at) - 1)) << 8 | (digits >> at >> 8) << at << 8;
      power = detail::kPowersOfTen[7 - at / 8];
      --length;
    }
    if (length == 0) return false;
  }

  // Eight digits at once, those in front being zeros: pairs in each second byte, then all four of those weighted.
  constexpr std::uint64_t kFourth = 0x000000FF000000FFu;
  digits = digits * 10 + (digits >> 8);
  const std::uint64_t odd = (digits & kFourth) * (100 + (std::uint64_t{1000000} << 32));
  const std::uint64_t even = (digits >> 16 & kFourth) * (1 + (std::uint64_t{10000} << 32));
  figures = static_cast<std::int32_t>((odd + even) >> 32);
  if (negative) figures = -figures;
  return true;
}

}  // namespace tarnview
