#pragma once

#include <cstdint>

#include "fields/FieldKey.h"
#include "fields/ShortNumber.h"

namespace tarnview {

/// Reads numbers that look alike: with blanks, sign, digits and point in the same places. So do
/// most that follow each other in a column of a log, and reading one takes a few steps and no
/// decision.
class NumberShape {
 public:
  /// Blanks, a sign, digits with at most one point. False for any other field, though it may be a
  /// number.
  bool Read(FieldKey key, ShortNumber& number) {
    if constexpr (!kWordsAreReadable) return false;
    if (!Fits(key) && !Learn(key)) return false;
    const std::uint64_t digits = key ^ looks_;
    number.digits = detail::EightDigits((digits & beforePoint_) << 8 | (digits & behindPoint_));
    if (negative_) number.digits = -number.digits;
    number.places = places_;
    return true;
  }

 private:
  bool Fits(FieldKey key) const {
    const std::uint64_t digits = key ^ looks_;
    return (detail::BytesAbove9(digits) | (digits & fixed_)) == 0;
  }
  bool Learn(FieldKey key);

  std::uint64_t looks_ = 0x10;  ///< a key of the shape, all digits 0; no field has the key 0x10
  std::uint64_t fixed_ = ~std::uint64_t{0};  ///< the bytes that are no digits
  std::uint64_t beforePoint_ = 0,
                behindPoint_ = ~std::uint64_t{0};  ///< the point's own byte is in neither
  int places_ = 0;
  bool negative_ = false;
};

inline bool NumberShape::Learn(FieldKey key) {
  *this = NumberShape();
  const std::uint64_t lengthAnd1 = key & 0xFF;
  const bool full = lengthAnd1 > kWordLength;
  std::uint64_t looks = full ? 0 : lengthAnd1, fixed = fixed_;
  bool anyDigit = false, signedYet = false, point = false;
  for (int at = full ? 0 : 72 - 8 * static_cast<int>(lengthAnd1); at < 64; at += 8) {
    const std::uint64_t character = key >> at & 0xFF;
    const bool leads = !anyDigit && !signedYet && !point;
    const bool isDigit = character >= '0' && character <= '9';
    looks |= (isDigit ? std::uint64_t{'0'} : character) << at;
    if (isDigit) {
      anyDigit = true;
      fixed &= ~(std::uint64_t{0xFF} << at);
    } else if (character == '.' && !point) {
      point = true;
      places_ = 7 - at / 8;
      beforePoint_ = (std::uint64_t{1} << at) - 1;
      behindPoint_ = ~(beforePoint_ << 8 | 0xFF);
    } else if (leads && (character == '-' || character == '+')) {
      signedYet = true;
      negative_ = character == '-';
    } else if (!leads || character != ' ') {
      return false;
    }
  }
  if (!anyDigit) return false;
  looks_ = looks;
  fixed_ = fixed;
  return true;
}

}  // namespace tarnview
