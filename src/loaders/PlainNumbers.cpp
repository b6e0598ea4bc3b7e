#include "loaders/PlainNumbers.h"

#include <bit>

#include "loaders/WideSteps.h"
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tarnview {

PlainNumbers::PlainNumbers(FieldKey first, FieldKey second) {
  const auto has = [=](char c) { return detail::BytesThatAre(first, c) | detail::BytesThatAre(second, c); };
  leads_ = has(' ') || has('-');
  // Behind a single character there is no room for a point, and the lowest byte may be the length.
  const auto pointsOf = [](FieldKey sample) { return detail::BytesThatAre(sample, '.') & ~FieldKey{0xFF}; };
  const FieldKey points = pointsOf(first) ? pointsOf(first) : pointsOf(second);
  if (!std::has_single_bit(points)) return;
  constexpr std::uint32_t kPoint = 32;  // more than the digits of a number can count
  const int at = std::countr_zero(points) / 8 * 8;
  const FieldKey byte = FieldKey{0xFF} << at;
  places_ = 7 - at / 8;
  looks_ ^= (FieldKey{'0'} ^ '.') << at;
  most_ &= ~byte;
  weights_ |= FieldKey{kPoint} << at;
  before_ = (FieldKey{1} << at) - 1;
  behind_ = ~(before_ | byte);
  point_ = kPoint;
}

#ifdef __SSE2__

namespace {

using Bytes = __m128i;  ///< of two keys

Bytes Both(FieldKey key) { return _mm_set1_epi64x(static_cast<long long>(key)); }
Bytes And(Bytes a, Bytes b) { return _mm_and_si128(a, b); }
Bytes Or(Bytes a, Bytes b) { return _mm_or_si128(a, b); }
/// Of the bytes of each key, as a number in its lower half.
Bytes Sum(Bytes bytes) { return _mm_sad_epu8(bytes, _mm_setzero_si128()); }
/// Of four keys.
Bytes LowerHalves(const Bytes* of) {
  return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(of[0]), _mm_castsi128_ps(of[1]), _MM_SHUFFLE(2, 0, 2, 0)));
}

/// Eight digits a key (as 0 to 9), the first in the lowest byte, to two numbers of four digits.
Bytes FourDigits(Bytes digits) {
  const Bytes tens = _mm_mullo_epi16(And(digits, _mm_set1_epi16(0xFF)), _mm_set1_epi16(10));
  return _mm_madd_epi16(_mm_add_epi16(tens, _mm_srli_epi16(digits, 8)), _mm_set1_epi32(1 << 16 | 100));
}
/// Four numbers of eight digits.
Bytes EightDigits(const Bytes* fours) {
  return _mm_madd_epi16(_mm_packs_epi32(fours[0], fours[1]), _mm_set1_epi32(1 << 16 | 10000));
}

}  // namespace

TARNVIEW_WIDE_STEPS std::uint64_t PlainNumbers::Read(const FieldKey* keys, std::size_t count,
                                                     std::int32_t* digits) const {
  const Bytes looks = Both(looks_), most = Both(most_), weights = Both(weights_), before = Both(before_),
              behind = Both(behind_), point = Both(point_), full = Both(kWordLength + point_),
              none = _mm_setzero_si128();
  const bool leads = leads_;
  std::uint64_t others = 0;
  for (std::size_t at = 0; at < count; at += kAtOnce) {
    Bytes fours[2], fits[2], minuses[2] = {none, none};
    for (int pair = 0; pair < 2; ++pair) {
      const Bytes key = _mm_loadu_si128(reinterpret_cast<const Bytes*>(keys + at) + pair);
      const Bytes apart = _mm_xor_si128(key, looks), fine = _mm_cmpeq_epi8(_mm_min_epu8(apart, most), apart);
      Bytes weighed = And(fine, weights);
      if (leads) {
        // One counts unless it stands behind a digit or a minus.
        const Bytes minus = _mm_cmpeq_epi8(key, _mm_set1_epi8('-')), blank = _mm_cmpeq_epi8(key, _mm_set1_epi8(' '));
        const Bytes tooLate = _mm_slli_epi64(Or(fine, minus), 8);
        weighed = Or(weighed, And(_mm_andnot_si128(tooLate, Or(minus, blank)), _mm_set1_epi8(1)));
        minuses[pair] = Sum(minus);
      }
      // All is well if the characters, and with them the point, weigh what a text of the key's length must; a text of
      // eight leaves no room for the length.
      const Bytes weight = Sum(weighed), length = And(key, Both(0xFF));
      fits[pair] = Or(_mm_cmpeq_epi32(weight, _mm_add_epi32(length, point)), _mm_cmpeq_epi32(weight, full));
      const Bytes digit = And(apart, fine);
      fours[pair] = FourDigits(Or(_mm_slli_epi64(And(digit, before), 8), And(digit, behind)));
    }
    Bytes number = EightDigits(fours);
    if (leads) {
      const Bytes negative = _mm_cmpgt_epi32(LowerHalves(minuses), none);
      number = _mm_sub_epi32(_mm_xor_si128(number, negative), negative);
    }
    _mm_storeu_si128(reinterpret_cast<Bytes*>(digits + at), number);
    const int fit = _mm_movemask_ps(_mm_castsi128_ps(LowerHalves(fits)));
    others |= std::uint64_t{static_cast<unsigned>(~fit) & 0xF} << at;
  }
  return others;
}

#else

std::uint64_t PlainNumbers::Read(const FieldKey*, std::size_t, std::int32_t*) const { return ~std::uint64_t{0}; }

#endif

}  // namespace tarnview
