#include "ui/HeatColours.h"

#include <algorithm>

namespace tarnview {

/// Byte by byte.
Colour HeatColourOf(double share) {
  const double at = std::clamp(share, 0.0, 1.0) * (kHeatColours.size() - 1);
  const auto low = std::min(static_cast<std::size_t>(at), kHeatColours.size() - 2);
  const double part = at - static_cast<double>(low);
  Colour mixed = 0;
  for (const int shift : {0, 8, 16}) {
    const auto byte = [&](Colour colour) { return static_cast<double>((colour >> shift) & 0xff); };
    const double value =
        byte(kHeatColours[low]) + part * (byte(kHeatColours[low + 1]) - byte(kHeatColours[low]));
    mixed |= static_cast<Colour>(value + 0.5) << shift;
  }
  return mixed;
}

}  // namespace tarnview
