#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tarnview {

/// So many bytes are looked at in one step.
inline constexpr std::size_t kMarkedBytes = 64;

namespace detail {

/// The plain way: eight bytes as one word.
inline std::uint64_t MarksOfWord(const char* at, char c) {
  constexpr std::uint64_t kEach = 0x0101010101010101u, kLow = kEach * 0x7F;
  std::uint64_t text;
  std::memcpy(&text, at, sizeof text);
  const std::uint64_t different = text ^ kEach * static_cast<unsigned char>(c);
  std::uint64_t same =
      ~(((different & kLow) + kLow) | different | kLow) >> 7;  // a 1 for each equal byte
  if constexpr (std::endian::native == std::endian::big) {
    std::uint64_t swapped = 0;
    for (int byte = 0; byte < 8; ++byte) swapped |= (same >> byte * 8 & 1) << (7 - byte) * 8;
    same = swapped;
  }
  return same * 0x0102040810204080u >> 56;  // the eight of them side by side
}

inline std::uint64_t MarksByWords(const char* at, char c) {
  std::uint64_t marks = 0;
  for (int word = 0; word < 8; ++word) marks |= MarksOfWord(at + word * 8, c) << word * 8;
  return marks;
}

}  // namespace detail

/// A bit for each of the kMarkedBytes bytes at `at` that is `c`, the first one's the lowest.
inline std::uint64_t MarksOf(const char* at, char c) {
#ifdef __SSE2__
  const __m128i wanted = _mm_set1_epi8(c);
  std::uint64_t marks = 0;
  for (int part = 0; part < 4; ++part) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + part * 16));
    const auto same = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, wanted)));
    marks |= std::uint64_t{same} << part * 16;
  }
  return marks;
#else
  return detail::MarksByWords(at, c);
#endif
}

}  // namespace tarnview
