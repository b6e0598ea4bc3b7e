#pragma once

#include <algorithm>
#include <cstdint>

namespace tarnview {

/// A whole number that every write brings into its limits. It starts at 0, which may lie outside
/// them: never written.
template <std::int32_t Low, std::int32_t High>
class Clamped {
 public:
  Clamped& operator=(std::int32_t value) {
    value_ = std::clamp(value, Low, High);
    return *this;
  }
  operator std::int32_t() const { return value_; }

 private:
  std::int32_t value_ = 0;
};

/// The id of a log family, 1 to 7; 0 where a record names none.
using LogFamilyId = Clamped<1, 7>;
/// The family of logs that a definition describes.
inline constexpr int kUniversalLogFamily = 7;

}  // namespace tarnview
