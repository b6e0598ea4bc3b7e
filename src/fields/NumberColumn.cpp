#include "fields/NumberColumn.h"

#include <algorithm>
#include <cstdlib>

#include "fields/WideSteps.h"

namespace tarnview {

void NumberColumn::ReadPlain(const FieldKey* keys) {
  static_assert(FieldIndex::kMostLines <= 64 &&
                FieldIndex::kMostLines % PlainNumbers::kAtOnce == 0);
  alike_ = AllAlike(keys, lines_);
  const std::size_t last = alike_ ? 0 : lines_ - 1;
  const PlainNumbers plain(keys[0], keys[last]);
  places_ = plain.Places();
  others_ = plain.Read(keys, last + 1, digits_.data()) & ~std::uint64_t{0} >> (63 - last);
}

// The loops over all lines have no decision in them, so that the compiler makes steps of several
// lines of them; what they make of lines whose digits are void is put right afterwards.

TARNVIEW_WIDE_STEPS void NumberColumn::Values(std::size_t count, BlockOf<double>& values) const {
  const double one = detail::kPowersOfTen[places_];
  if (alike_) {
    std::fill_n(values.begin(), count, others_ ? otherNumbers_[0] : digits_[0] / one);
    return;
  }
  for (std::size_t line = 0; line < count; ++line) values[line] = digits_[line] / one;
  for (std::uint64_t rest = others_; rest; rest &= rest - 1) {
    const auto line = static_cast<std::size_t>(std::countr_zero(rest));
    values[line] = otherNumbers_[line];
  }
}

TARNVIEW_WIDE_STEPS void NumberColumn::Stored(int scale, BlockOf<std::int32_t>& cells) const {
  constexpr std::int32_t kTens[] = {1, 10, 100, 1000, 10000};
  const std::size_t count = alike_ ? 1 : lines_;
  if (places_ <= scale) {  // a whole number as it stands
    const std::int32_t times = kTens[scale - places_],
                       most = std::numeric_limits<std::int32_t>::max() / times;
    for (std::size_t line = 0; line < count; ++line)
      cells[line] = std::abs(digits_[line]) <= most ? digits_[line] * times : 0;
  } else {
    const double one = detail::kPowersOfTen[places_], times = kTens[scale];
    for (std::size_t line = 0; line < count; ++line)
      cells[line] = static_cast<std::int32_t>(WithoutFraction(digits_[line] / one * times));
  }
  for (std::uint64_t rest = others_; rest; rest &= rest - 1) {
    const auto line = static_cast<std::size_t>(std::countr_zero(rest));
    cells[line] = RoundToLong(otherNumbers_[line] * kTens[scale]);
  }
  if (alike_) std::fill_n(cells.begin(), lines_, cells[0]);
}

}  // namespace tarnview
