#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "base/Numbers.h"
#include "fields/FieldColumn.h"
#include "fields/NumberShape.h"
#include "fields/PlainNumbers.h"

namespace tarnview {

/// The numbers of a field in all lines of a block.
class NumberColumn {
 public:
  /// `slowly(line)` tells the number of a text that is not simply digits; where the same text
  /// stands in several such lines running, it is asked once.
  template <class Slowly>
  void Read(FieldIndex& block, std::size_t field, const Slowly& slowly);

  /// The same of the keys of `lines` fields, up to BlockOf's size and with as much room behind
  /// them.
  template <class Slowly>
  void Read(const FieldKey* keys, std::size_t lines, const Slowly& slowly);

  /// All lines have one text.
  bool Alike() const { return alike_; }
  /// The first `count` numbers.
  void Values(std::size_t count, BlockOf<double>& values) const;
  /// All numbers x 10^scale, rounded; scale 0 to 4.
  void Stored(int scale, BlockOf<std::int32_t>& cells) const;

 private:
  void ReadPlain(const FieldKey* keys);

  std::size_t lines_ = 0;
  bool alike_ = false;
  int places_ = 0;
  BlockOf<std::int32_t> digits_;  ///< digits / 10^places_ is the number
  std::uint64_t others_ = 0;      ///< a bit for each line whose number stands here instead
  BlockOf<double> otherNumbers_;
};

template <class Slowly>
void NumberColumn::Read(FieldIndex& block, std::size_t field, const Slowly& slowly) {
  Read(block.Keys(field), block.Lines(), slowly);
}

template <class Slowly>
void NumberColumn::Read(const FieldKey* keys, std::size_t lines, const Slowly& slowly) {
  lines_ = lines;
  if (lines_ == 0) return;
  ReadPlain(keys);
  NumberShape shape;
  FieldKey last = kOtherField;  // so that the first one is read
  double number = 0;
  for (std::uint64_t rest = others_; rest; rest &= rest - 1) {
    const auto line = static_cast<std::size_t>(std::countr_zero(rest));
    if (keys[line] != last || last == kOtherField) {
      last = keys[line];
      ShortNumber quick;
      number = shape.Read(last, quick) ? quick.Value() : slowly(line);
    }
    otherNumbers_[line] = number;
  }
}

}  // namespace tarnview
