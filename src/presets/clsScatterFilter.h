#pragma once

#include <cstdint>

#include "base/Records.h"

namespace tarnview {

/// The one mark of a bound that is not set, in memory and in files.
inline constexpr double kBoundNotSet = -99999;

/// Keeps the samples whose value of one item lies within bounds (both inclusive), or equals a
/// listed value.
class clsScatterFilter {
 public:
  double dblTo = kBoundNotSet;
  double dblFrom = kBoundNotSet;    ///< of a list item: the stored value to equal
  std::int32_t lngDataItemSeq = 0;  ///< item number (intSeq)

  clsScatterFilter Duplicate() const { return *this; }
};

class clsScatterFilters : public Records<clsScatterFilter> {
 public:
  clsScatterFilters Duplicate() const { return *this; }
};

}  // namespace tarnview
