#include "base/Clock.h"

#include <array>
#include <ctime>

#include "base/Numbers.h"

namespace tarnview {

Moment RealClock::Now() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  if (!local) return {};
  return {local->tm_year + 1900, local->tm_mon + 1, local->tm_mday,
          local->tm_hour,        local->tm_min,     local->tm_sec};
}

std::string LogTime(const Moment& moment) {
  static constexpr std::array kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  return PaddedText(moment.day, 2) + "-" +
         kMonths[static_cast<std::size_t>(moment.month - 1) % kMonths.size()] + "-" +
         PaddedText(moment.year, 4) + " " + PaddedText(moment.hour, 2) + ":" +
         PaddedText(moment.minute, 2);
}

}  // namespace tarnview
