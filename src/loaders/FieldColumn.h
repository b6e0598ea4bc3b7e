#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "loaders/FieldIndex.h"
#include "loaders/NumberShape.h"

namespace tarnview {

/// What a column gives for each line of a block.
template <class Value>
using BlockOf = std::array<Value, FieldIndex::kMostLines>;

/// The values of a field in all lines of a block. `read(key, line)` tells the value of a text; where the same text
/// stands in several lines running, it is asked once: most quantities change slower than lines come. Returns whether
/// all lines have one text.
template <class Value, class Read>
bool ReadColumn(FieldIndex& block, std::size_t field, BlockOf<Value>& values, const Read& read) {
  const FieldKey* const keys = block.Keys(field);
  const std::size_t lines = block.Lines();
  FieldKey different = 0;
  for (std::size_t line = 0; line < lines; ++line) different |= keys[line] ^ keys[0];
  if (!different && lines && keys[0] != kOtherField) {
    std::fill_n(values.begin(), lines, read(keys[0], 0));
    return true;
  }
  FieldKey last = kOtherField;  // so that the first one is asked
  Value value{};
  for (std::size_t line = 0; line < lines; ++line) {
    if (keys[line] != last || last == kOtherField) value = read(last = keys[line], line);
    values[line] = value;
  }
  return false;
}

}  // namespace tarnview
