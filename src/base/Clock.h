#pragma once

#include <string>

namespace tarnview {

/// The moment now, in local time.
struct Moment {
  int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Moment Now() = 0;
};

class RealClock : public Clock {
 public:
  Moment Now() override;
};

/// "24-Nov-2026 14:05", as the error log writes it ("dd-mmm-yyyy" and " hh:mm").
std::string LogTime(const Moment& moment);

}  // namespace tarnview
