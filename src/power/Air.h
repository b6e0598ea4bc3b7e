#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnview {

/// How the humidity of the air is given.
enum class HumidityType : int { Relative, WetBulb };

/// The air on the day of a run, as the fields of a window hold it.
struct Air {
  std::int32_t temperature = 20;  ///< degrees C
  std::int32_t pressure = 101;    ///< kPa
  std::string humidity = "50";    ///< per cent, or the wet bulb's degrees C
  HumidityType humidityType = HumidityType::Relative;
};

/// Per cent, 0 to 100, of air at `temperature` whose wet bulb shows `wetBulb` (degrees C); pressure
/// in hPa. A wet bulb warmer than the air counts as saturated air.
double RelativeHumidity(double temperature, double wetBulb, double pressure);

/// The factor that takes power measured in this air to the power in the standard's air (25 degrees
/// C, 99 kPa, dry), "1.007"; empty where it would not be above 0.
std::string CorrectionFactor(const Air& air);

}  // namespace tarnview
