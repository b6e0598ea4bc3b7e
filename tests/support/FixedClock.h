#pragma once

#include "base/Clock.h"

namespace tarnview {

/// A clock that stands still where the test sets it.
class FixedClock : public Clock {
 public:
  Moment moment{2026, 11, 24, 14, 5, 9};
  Moment Now() override { return moment; }
};

}  // namespace tarnview
