#pragma once

#include <string>

namespace tarnview {

/// Where a sample lies among the four zones of the fuel map around it.
struct ZoneInfluence {
  std::string lowerLow;   ///< lower row, lower RPM; a name is the row and RPM / 100: "225"
  std::string lowerHigh;  ///< lower row, higher RPM
  std::string upperLow;
  std::string upperHigh;
  double up = 0;  ///< from the lower row (0) to the upper (1); may lie just outside
  double across =
      0;  ///< from the middle of the zones at the lower RPM (0) to that at the higher (1)
};

/// `sixRows`: the map has six rows (normally aspirated), else rows of 40 kPa.
ZoneInfluence FindZoneInfluence(double rpm, double kPa, bool sixRows);

}  // namespace tarnview
