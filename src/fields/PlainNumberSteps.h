// The steps of PlainNumbers, in the widest registers of the processor that the file including this
// is compiled for: of 16 bytes (SSE2), which every x86-64 has, or of 32 (AVX2). A register holds
// two keys, or twice two.

#pragma once

#include <immintrin.h>

#include "fields/PlainNumbers.h"

namespace tarnview {
namespace {

#ifdef __AVX2__
using Bytes = __m256i;
#define TARNVIEW_MM(operation) _mm256_##operation
#else
using Bytes = __m128i;
#define TARNVIEW_MM(operation) _mm_##operation
#endif

constexpr std::size_t kKeysAtOnce = 2 * sizeof(Bytes) / sizeof(FieldKey);

Bytes EachKey(FieldKey key) { return TARNVIEW_MM(set1_epi64x)(static_cast<long long>(key)); }
Bytes EachByte(char c) { return TARNVIEW_MM(set1_epi8)(c); }
Bytes Minimum(Bytes a, Bytes b) { return TARNVIEW_MM(min_epu8)(a, b); }
Bytes EqualBytes(Bytes a, Bytes b) { return TARNVIEW_MM(cmpeq_epi8)(a, b); }
Bytes EqualHalves(Bytes a, Bytes b) { return TARNVIEW_MM(cmpeq_epi32)(a, b); }
/// Each byte of a key to the place of the character behind it.
Bytes OneBehind(Bytes bytes) { return TARNVIEW_MM(slli_epi64)(bytes, 8); }
/// Of the bytes of each key, as a number in its lower half.
Bytes Sum(Bytes bytes) { return TARNVIEW_MM(sad_epu8)(bytes, Bytes{}); }

// What two registers have of as many keys, in the keys' order.

Bytes Load(const FieldKey* keys, int which) {
  const auto two = [keys](int at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(keys + at));
  };
#ifdef __AVX2__
  return _mm256_set_m128i(two(4 + which * 2), two(which * 2));
#else
  return two(which * 2);
#endif
}
auto LowerHalves(const Bytes* of) {
#ifdef __AVX2__
  return _mm256_shuffle_ps(_mm256_castsi256_ps(of[0]), _mm256_castsi256_ps(of[1]),
                           _MM_SHUFFLE(2, 0, 2, 0));
#else
  return _mm_shuffle_ps(_mm_castsi128_ps(of[0]), _mm_castsi128_ps(of[1]), _MM_SHUFFLE(2, 0, 2, 0));
#endif
}
/// Eight digits a key (as 0 to 9), the first in the lowest byte, to two numbers of four digits.
Bytes FourDigits(Bytes digits) {
  const Bytes tens =
      TARNVIEW_MM(mullo_epi16)(digits & TARNVIEW_MM(set1_epi16)(0xFF), TARNVIEW_MM(set1_epi16)(10));
  return TARNVIEW_MM(madd_epi16)(TARNVIEW_MM(add_epi16)(tens, TARNVIEW_MM(srli_epi16)(digits, 8)),
                                 TARNVIEW_MM(set1_epi32)(1 << 16 | 100));
}
Bytes EightDigits(const Bytes* fours) {
  return TARNVIEW_MM(madd_epi16)(TARNVIEW_MM(packs_epi32)(fours[0], fours[1]),
                                 TARNVIEW_MM(set1_epi32)(1 << 16 | 10000));
}
/// `numbers`, less than 0 where `marks` is not 0.
Bytes Negated(Bytes numbers, Bytes marks) {
  const Bytes negative = TARNVIEW_MM(cmpgt_epi32)(marks, Bytes{});
  return TARNVIEW_MM(sub_epi32)(numbers ^ negative, negative);
}

/// PlainNumbers::Read.
std::uint64_t ReadInSteps(const PlainNumbers::Look& look, const FieldKey* keys, std::size_t count,
                          std::int32_t* digits) {
  const Bytes zeros = EachKey(look.digits), most = EachKey(look.most),
              weights = EachKey(look.weights), before = EachKey(look.before),
              behind = EachKey(look.behind), beyondLength = EachKey(FieldKey{look.point} - 1),
              full = EachKey(kWordLength + look.point);
  const bool leads = look.leads;
  std::uint64_t others = 0;
  for (std::size_t at = 0; at < count; at += kKeysAtOnce) {
    Bytes fours[2], fits[2], minuses[2] = {};
    for (int which = 0; which < 2; ++which) {
      const Bytes key = Load(keys + at, which), apart = key ^ zeros,
                  fine = EqualBytes(Minimum(apart, most), apart);
      Bytes weighed = fine & weights;
      if (leads) {
        // One counts unless it stands behind a digit or a minus.
        const Bytes minus = EqualBytes(key, EachByte('-')), blank = EqualBytes(key, EachByte(' '));
        weighed |= (minus | blank) & ~OneBehind(fine | minus) & EachByte(1);
        minuses[which] = Sum(minus);
      }
      // All is well if the characters, and with them the point, weigh what a text of the key's
      // length must; a text of eight leaves no room for the length.
      const Bytes weight = Sum(weighed), lengthAnd1 = key & EachKey(0xFF);
      fits[which] = EqualHalves(weight, lengthAnd1 + beyondLength) | EqualHalves(weight, full);
      const Bytes digit = apart & fine;
      fours[which] = FourDigits(OneBehind(digit & before) | (digit & behind));
    }
    Bytes numbers = EightDigits(fours);
    if (leads) numbers = Negated(numbers, reinterpret_cast<Bytes>(LowerHalves(minuses)));
    std::memcpy(digits + at, &numbers, sizeof numbers);
    const auto fit = static_cast<unsigned>(TARNVIEW_MM(movemask_ps)(LowerHalves(fits)));
    others |= std::uint64_t{fit ^ ((1u << kKeysAtOnce) - 1)} << at;
  }
  return others;
}

#undef TARNVIEW_MM

}  // namespace
}  // namespace tarnview
