#include "SyntheticUniversalLog.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarnview::bench {

std::string SyntheticUniversalLog(int samples) {
  std::string log =
      "timestamp,Coolant Temp (C),AFR (:1),Engine Speed (RPM),TPS (%),Boost (PSI),Vehicle Speed "
      "(KPH),Knock Ramp (V),"
      "Air Temp (C),Duty Cycle (%),Knock Ret. (Deg.),Boost Valve (%),Cell X (N),Cell Y (N),Fuel "
      "Pulse (MS),"
      "Vacuum (mmHg),Advance (deg.)\r\n";
  char line[200];
  for (int n = 0; n < samples; ++n) {
    const double swing = 0.5 - 0.5 * std::cos(n / 90.0);
    const double noise = (static_cast<unsigned>(n) * 2654435761u >> 20) / 4096.0 - 0.5;
    const double throttle = std::clamp(swing * 1.2 - 0.1 + noise * 0.02, 0.0, 1.0);
    const double boost = std::max(0.0, throttle * 30 - 18);
    std::snprintf(
        line, sizeof line, "%d,%d,%.2f,%d,%.1f,%.2f,%d,%.2f,%d,%.1f,%d,%d,%d,%d,%.2f,%d,%.1f\r\n",
        n * 100, std::min(20 + n / 60, 88), 14.7 - 3 * throttle + noise / 10,
        static_cast<int>(850 + 6200 * swing * swing + 40 * noise), 100 * throttle, boost,
        static_cast<int>(40 + 100 * swing), 1 + throttle + noise / 2, 20 + n / 900 % 30,
        4 + 80 * throttle, n % 700 == 0 ? 3 : 0, static_cast<int>(60 * throttle),
        static_cast<int>(10 * swing), static_cast<int>(8 * throttle), 2 + 12 * throttle + noise / 5,
        static_cast<int>(boost > 0 ? 0 : 500 - 500 * throttle), 10 + 22 * (1 - throttle));
    log += line;
  }
  return log;
}

}  // namespace tarnview::bench
