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
  return "000/" + PaddedText(masterFuel > 0 ? std::min(255, kMost / masterFuel) : 255, 3);
}

}  // namespace tarnview
