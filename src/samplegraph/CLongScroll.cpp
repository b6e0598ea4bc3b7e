#include "samplegraph/CLongScroll.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/Numbers.h"

namespace tarnview {

void CLongScroll::Client(ScrollBar* bar) {
  if (m_Client) {
    m_Client->Change = [] {};
    m_Client->Scroll = [] {};
  }
  m_Client = bar;
  if (!bar) return;
  blnInternal_ = true;
  bar->Min = 0;
  bar->Max = 32767;
  bar->SmallChange = 1;
  bar->LargeChange = 10;
  bar->Value = 0;
  blnInternal_ = false;
  clientValue_ = 0;
  bar->Change = [this] { ClientChanged(); };
  bar->Scroll = [this] { ClientScrolled(); };
}

void CLongScroll::Max(std::int32_t max) {
  max_ = max;
  const std::int32_t highest = Higher();
  if (value_ > highest || (max_ == min_ && value_ != max_)) value(highest);
}

void CLongScroll::Min(std::int32_t min) {
  min_ = min;
  const std::int32_t lowest = Lower();
  if (value_ < lowest || (max_ == min_ && value_ != min_)) value(lowest);
}

void CLongScroll::value(std::int32_t value) {
  value_ = std::clamp(value, Lower(), Higher());
  ShowOnClient();
  Change();
}

void CLongScroll::ShowOnClient() {
  if (!m_Client) return;
  const double range = std::abs(static_cast<double>(max_) - min_);
  double part = 0;
  if (range != 0) part = (static_cast<double>(value_) - Lower()) / range;
  const double travel = part * std::abs(m_Client->Max() - m_Client->Min());
  const double position = Reversed() ? m_Client->Max() - travel : m_Client->Min() + travel;
  WriteClient(RoundToLong(position));
}

/// The thumb is at an end only where the value truly is.
void CLongScroll::WriteClient(int position) {
  if (position == m_Client->Min() && value_ > min_) position = m_Client->Min() + 1;
  if (position == m_Client->Max() && value_ < max_) position = m_Client->Max() - 1;
  blnInternal_ = true;
  m_Client->Value = position;
  blnInternal_ = false;
  clientValue_ = position;
}

void CLongScroll::TakeFromThumb() {
  const double travel = std::abs(m_Client->Max() - m_Client->Min());
  double part = 0;
  if (travel != 0) part = std::abs(m_Client->Value() - m_Client->Min()) / travel;
  if (Reversed()) part = 1 - part;
  const double range = std::abs(static_cast<double>(max_) - min_);
  value_ = RoundToLong(Lower() + part * range);
}

void CLongScroll::ClientChanged() {
  if (blnInternal_) return;
  int moved = m_Client->Value() - clientValue_;
  if (Reversed()) moved = -moved;
  const bool page = std::abs(moved) == m_Client->LargeChange();
  if (page || std::abs(moved) == m_Client->SmallChange()) {
    std::int64_t step = page ? LargeChange : SmallChange;
    if (moved < 0) step = -step;
    const std::int64_t wanted = value_ + step;
    value_ = static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, Lower(), Higher()));
  } else {
    TakeFromThumb();
  }
  ShowOnClient();
  Change();
}

void CLongScroll::ClientScrolled() {
  if (blnInternal_) return;
  TakeFromThumb();
  Scroll();
}

}  // namespace tarnview
