#pragma once

#include <string>
#include <string_view>

namespace tarnview {

/// Limits of a setting.
struct ZoneRange {
  int low = 0, high = 255;
};

/// "-70/185"; 0 to 255 where the text has no slash behind its first character.
ZoneRange ParseZoneRange(std::string_view text);

/// The range of z715 on Chip Version 2, which follows Master Fuel: "000/093" for 140.
std::string PrimeFactorRange(int masterFuel);

}  // namespace tarnview
