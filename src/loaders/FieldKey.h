#pragma once

#include <cstdint>
#include <cstring>

#include "loaders/ShortNumber.h"

namespace tarnview {

/// A field of 1 to 8 characters as one word: the last character in the highest byte, and in the lowest one, where that
/// is free, the length. Fields of the same key have the same text.
using FieldKey = std::uint64_t;
// Keys of no text: the lowest byte of all others is a length up to 7 or a character from ' ' on.
inline constexpr FieldKey kEmptyField = 0;
inline constexpr FieldKey kNoField = 9;      ///< the line has no such field
inline constexpr FieldKey kOtherField = 10;  ///< any text that has no key of its own

/// kWordLength bytes must be there to read at `text`, whatever the length.
inline FieldKey KeyOfField(const char* text, std::size_t length) {
  if constexpr (!kWordsAreReadable) return length ? kOtherField : kEmptyField;
  FieldKey word;
  std::memcpy(&word, text, kWordLength);
  if (length - 1 < kWordLength - 1) return word << (kWordLength - length) * 8 | length;
  if (length == 0) return kEmptyField;
  // Eight characters leave no byte for the length: their first one stands there, and must not look like it.
  return length == kWordLength && (word & 0xFF) >= ' ' ? word : kOtherField;
}

}  // namespace tarnview
