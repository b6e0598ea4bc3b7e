#include "zones/ZoneRange.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {

ZoneRange ParseZoneRange(std::string_view text) {
  const auto slash = text.find('/');
  if (slash == std::string_view::npos || slash == 0) return {};
  return {StringToLong(text.substr(0, slash)), StringToLong(text.substr(slash + 1))};
}

std::string PrimeFactorRange(int masterFuel) {
  constexpr int kMost = 13150;
  int most = 255;
  if (masterFuel > 0) most = std::min(most, kMost / masterFuel);
  return "000/" + PaddedText(most, 3);
}

}  // namespace tarnview
