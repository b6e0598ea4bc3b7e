#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "fields/FieldIndex.h"

namespace tarnview {

/// What a column gives for each line of a block.
template <class Value>
using BlockOf = std::array<Value, FieldIndex::kMostLines>;

/// All lines have one text, which has a key.
inline bool AllAlike(const FieldKey* keys, std::size_t lines) {
  FieldKey different = 0;
  for (std::size_t line = 0; line < lines; ++line) different |= keys[line] ^ keys[0];
  return !different && lines > 0 && keys[0] != kOtherField;
}

/// The values of a field in all lines of a block. `read(line)` tells the value of a text; where the
/// same text stands in several lines running, it is asked once: most quantities change slower than
/// lines come.
template <class Value, class Read>
void ReadColumn(FieldIndex& block, std::size_t field, BlockOf<Value>& values, const Read& read) {
  const FieldKey* const keys = block.Keys(field);
  const std::size_t lines = block.Lines();
  if (AllAlike(keys, lines)) {
    std::fill_n(values.begin(), lines, read(0));
    return;
  }
  FieldKey last = kOtherField;  // so that the first one is asked
  Value value{};
  for (std::size_t line = 0; line < lines; ++line) {
    if (keys[line] != last || last == kOtherField) {
      last = keys[line];
      value = read(line);
    }
    values[line] = value;
  }
}

}  // namespace tarnview
