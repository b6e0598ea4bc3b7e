#pragma once

#include <cstdint>
#include <cstring>

#include "fields/ShortNumber.h"

namespace tarnview {

/// A field of up to 8 characters as one word: the last character in the highest byte, and in the
/// lowest one, where that is free, the length and 1. Fields of the same key have the same text.
using FieldKey = std::uint64_t;
inline constexpr FieldKey kEmptyField = 1;
// Keys of no text: the lowest byte of all others is a length and 1, up to 8, or a character from '
// ' on.
inline constexpr FieldKey kNoField = 9;      ///< the line has no such field
inline constexpr FieldKey kOtherField = 10;  ///< any text that has no key of its own

namespace detail {

/// By a length and 1: the highest bytes of a word, as many as the length.
inline constexpr FieldKey kHighestBytes[kWordLength + 1] = {0,
                                                            0,
                                                            0xFF00000000000000u,
                                                            0xFFFF000000000000u,
                                                            0xFFFFFF0000000000u,
                                                            0xFFFFFFFF00000000u,
                                                            0xFFFFFFFFFF000000u,
                                                            0xFFFFFFFFFFFF0000u,
                                                            0xFFFFFFFFFFFFFF00u};

/// Eight characters leave no byte for the length: their first one stands there, and must not look
/// like it.
inline FieldKey KeyOfLongField(FieldKey word, std::size_t length) {
  if (length == kWordLength && (word & 0xFF) >= ' ') return word;
  return kOtherField;
}

}  // namespace detail

/// Of the characters before `end`, so many less one; kWordLength bytes must be there to read,
/// whatever the length.
inline FieldKey KeyOfField(const char* end, std::size_t lengthAnd1) {
  if constexpr (!kWordsAreReadable) return lengthAnd1 > 1 ? kOtherField : kEmptyField;
  FieldKey word;
  std::memcpy(&word, end - kWordLength, kWordLength);
  if (lengthAnd1 <= kWordLength) [[likely]]
    return (word & detail::kHighestBytes[lengthAnd1]) | lengthAnd1;
  return detail::KeyOfLongField(word, lengthAnd1 - 1);
}

}  // namespace tarnview
