#pragma once

#include <cstddef>
#include <cstdint>

#include "fields/FieldKey.h"

namespace tarnview {

/// A number is plain when it is digits with at most one point, behind blanks or a minus. A logger
/// writes a quantity with the same number of decimals throughout, so the points of a column, seen
/// from the fields' ends, stand in one place, and several such numbers are read in one go.
class PlainNumbers {
 public:
  static constexpr std::size_t kAtOnce = 8;  ///< at most

  /// Numbers of the look of two samples: whose point stands where that of the first or else of the
  /// second does, and that have blanks or a minus in front only if one of them has.
  PlainNumbers(FieldKey first, FieldKey second);

  /// Of them behind the point.
  int Places() const { return places_; }
  /// The digits of `count` keys (1 to 64) as whole numbers; also 0 for a text without any. Keys are
  /// read, and `digits` written, up to the next kAtOnce. Gives a bit for each key that is no such
  /// number, and whose digits are void.
  std::uint64_t Read(const FieldKey* keys, std::size_t count, std::int32_t* digits) const;

  /// What keys are compared with.
  struct Look {
    bool leads = false;                          ///< something may stand in front
    FieldKey digits = detail::kEachByte * '0';   ///< eight digits 0, with the point
    FieldKey most = detail::kEachByte * 9;       ///< that a byte may differ from it
    FieldKey weights = detail::kEachByte;        ///< what a byte counts that does not differ more
    FieldKey before = 0, behind = ~FieldKey{0};  ///< the point's own byte is in neither
    std::uint32_t point = 0;                     ///< what the point counts beyond a digit
  };
  const Look& Sought() const { return look_; }

 private:
  int places_ = 0;
  Look look_;
};

}  // namespace tarnview
