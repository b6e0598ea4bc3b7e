#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tarnview {

/// The least and the greatest whole number that a value may have.
struct Limits {
  std::int32_t least, most;

  constexpr std::int32_t Hold(std::int32_t value) const { return std::clamp(value, least, most); }
  constexpr bool Allow(std::int32_t value) const { return value >= least && value <= most; }
  friend bool operator==(const Limits&, const Limits&) = default;
};

inline constexpr Limits kAnyWhole{std::numeric_limits<std::int32_t>::min(),
                                  std::numeric_limits<std::int32_t>::max()};

// What the reader of the settings, the windows and the definitions hold their values to.

inline constexpr Limits kGraphYMaxLimits{10, 1000};
inline constexpr Limits kShowPointWidthLimits{50, 1000};      ///< samples
inline constexpr Limits kInitialPlotWidthLimits{0, 300000};   ///< samples
inline constexpr Limits kPlotFromTemperatureLimits{-99, 99};  ///< degrees C
inline constexpr Limits kAtmosphericPressureLimits{75, 115};  ///< kPa
inline constexpr Limits kAirTemperatureLimits{-30, 60};       ///< degrees C, also of a wet bulb
inline constexpr Limits kPerCentLimits{0, 100};
inline constexpr Limits kComPortLimits{1, 9};
inline constexpr Limits kChipVersionLimits{1, 3};
inline constexpr Limits kSpeedUnitsLimits{1, 3};
inline constexpr Limits kColourSchemeLimits{1, 3};
inline constexpr Limits kAngleLimits{0, 359};  ///< degrees
inline constexpr Limits kLineStyleLimits{1, 3};
inline constexpr Limits kLineWidthLimits{1, 5};

inline constexpr double kLeastDisplayFactor = 0.01, kMostDisplayFactor = 100;
inline constexpr double kLeastLinesASecond = 0.01, kMostLinesASecond = 100000;

}  // namespace tarnview
