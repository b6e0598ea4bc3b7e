// Compiled for processors with AVX2, and called on no other.

#ifdef __AVX2__

#include "fields/PlainNumberSteps.h"

namespace tarnview {

std::uint64_t ReadPlainNumbersWide(const PlainNumbers::Look& look, const FieldKey* keys,
                                   std::size_t count, std::int32_t* digits) {
  return ReadInSteps(look, keys, count, digits);
}

}  // namespace tarnview

#endif
