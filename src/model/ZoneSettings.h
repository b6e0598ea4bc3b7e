#pragma once

#include <array>
#include <cstdint>

#include "base/Dates.h"

namespace tarnview {

/// The settings of a Link ECU: 256 raw values, 0 to 255 each; a negative value is one that is not
/// known.
using ZoneSettings = std::array<std::int16_t, 256>;

/// What decides how zone settings are read; it travels with them.
struct ChipIdentity {
  double dblEngineSize = 0;  ///< litres: 1.6 or 1.8; 0 for not known
  Date datChipDate = kNoDate;
  int intChipVersion = 0;  ///< 1 to 3; 0 for not known
  friend bool operator==(const ChipIdentity&, const ChipIdentity&) = default;
};

}  // namespace tarnview
