#include "fields/PlainNumbers.h"

#include <algorithm>
#include <bit>

#ifdef __x86_64__
#include "fields/PlainNumberSteps.h"
#endif

namespace tarnview {

PlainNumbers::PlainNumbers(FieldKey first, FieldKey second) {
  const auto has = [=](char c) {
    return detail::BytesThatAre(first, c) | detail::BytesThatAre(second, c);
  };
  look_.leads = has(' ') || has('-');
  // Behind a single character there is no room for a point, and the lowest byte may be the length.
  const auto pointsOf = [](FieldKey sample) {
    return detail::BytesThatAre(sample, '.') & ~FieldKey{0xFF};
  };
  const FieldKey points = pointsOf(first) ? pointsOf(first) : pointsOf(second);
  if (!std::has_single_bit(points)) return;
  constexpr std::uint32_t kPoint = 32;  // more than the digits of a number can count
  const int at = std::countr_zero(points) / 8 * 8;
  const FieldKey byte = FieldKey{0xFF} << at;
  places_ = 7 - at / 8;
  look_.digits ^= (FieldKey{'0'} ^ '.') << at;
  look_.most &= ~byte;
  look_.weights |= FieldKey{kPoint} << at;
  look_.before = (FieldKey{1} << at) - 1;
  look_.behind = ~(look_.before | byte);
  look_.point = kPoint;
}

#if defined(__x86_64__) && defined(__GNUC__)

std::uint64_t ReadPlainNumbersWide(const PlainNumbers::Look& look, const FieldKey* keys,
                                   std::size_t count, std::int32_t* digits);

std::uint64_t PlainNumbers::Read(const FieldKey* keys, std::size_t count,
                                 std::int32_t* digits) const {
  static const auto read = __builtin_cpu_supports("avx2") ? ReadPlainNumbersWide : ReadInSteps;
  return read(look_, keys, count, digits);
}

#else

std::uint64_t PlainNumbers::Read(const FieldKey*, std::size_t count, std::int32_t* digits) const {
  std::fill_n(digits, count, 0);
  return ~std::uint64_t{0};
}

#endif

}  // namespace tarnview
