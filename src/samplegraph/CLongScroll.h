#pragma once

#include <cstdint>

#include "ui/ScrollBar.h"

namespace tarnview {

/// A position in a 32-bit range, shown on a scroll bar of 16 bits.
class CLongScroll {
 public:
  CLongScroll() = default;
  CLongScroll(const CLongScroll&) = delete;

  /// The bar that does the showing; nullptr for none.
  void Client(ScrollBar* bar);
  ScrollBar* Client() const { return m_Client; }

  std::int32_t Max() const { return max_; }
  void Max(std::int32_t max);  ///< may be below Min, for a reversed bar
  std::int32_t Min() const { return min_; }
  void Min(std::int32_t min);
  std::int32_t LargeChange = 1;
  std::int32_t SmallChange = 1;
  std::int32_t value() const { return value_; }
  /// Clamped to the range; shown on the bar; raises Change.
  void value(std::int32_t value);

  Event<> Change;
  Event<> Scroll;

 private:
  bool Reversed() const { return max_ < min_; }
  std::int32_t Lower() const {
    if (Reversed()) return max_;
    return min_;
  }
  std::int32_t Higher() const {
    if (Reversed()) return min_;
    return max_;
  }
  void ClientChanged();
  void ClientScrolled();
  void TakeFromThumb();
  void ShowOnClient();
  void WriteClient(int position);

  ScrollBar* m_Client = nullptr;
  std::int32_t min_ = 0;
  std::int32_t max_ = 32767;
  std::int32_t value_ = 0;
  int clientValue_ = 0;       ///< the bar's value as it was last seen
  bool blnInternal_ = false;  ///< a change of the bar comes from here
};

}  // namespace tarnview
