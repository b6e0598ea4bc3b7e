#include "power/Air.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"

namespace tarnview {
namespace {

// The two formulas for the pressure of water vapour have constants of their own: each belongs to a
// published one, and they are not to be made one.

/// hPa over water at t degrees C (Bolton 1980, equation 10).
double SaturationOfBolton(double t) { return 6.112 * std::exp(17.67 * t / (t + 243.5)); }

/// hPa over water at t degrees C (Tetens 1930).
double SaturationOfTetens(double t) { return 6.1078 * std::pow(10, 7.5 * t / (t + 237.3)); }

double HumidityOf(const Air& air, double pressure) {
  const double given = StringToDouble(air.humidity);
  if (air.humidityType == HumidityType::WetBulb)
    return RelativeHumidity(air.temperature, given, pressure);
  return given;
}

}  // namespace

double RelativeHumidity(double temperature, double wetBulb, double pressure) {
  constexpr double kPsychrometer = 0.00066;  // per degree C, of a ventilated wet bulb
  constexpr double kWetBulbTerm = 0.00115;   // per degree C
  const double vapour = SaturationOfBolton(wetBulb) - (temperature - wetBulb) * pressure *
                                                          kPsychrometer *
                                                          (wetBulb * kWetBulbTerm + 1);
  const double percent = RoundHalfEven(100 * vapour / SaturationOfBolton(temperature));
  if (std::isfinite(percent)) return std::clamp(percent, 0.0, 100.0);
  return 0;
}

std::string CorrectionFactor(const Air& air) {
  // SAE J1349: the dry air of 990 hPa and 298 K is the standard's; 273 here, not 273.15, kept on
  // purpose.
  constexpr double kStandardDryPressure = 990, kStandardKelvin = 298, kZeroCelsius = 273;
  const double pressure = static_cast<double>(air.pressure) * 10;  // hPa
  const double vapour = SaturationOfTetens(air.temperature) * HumidityOf(air, pressure) / 100;
  const double pressurePart = kStandardDryPressure / (pressure - vapour);
  const double temperaturePart = std::sqrt((air.temperature + kZeroCelsius) / kStandardKelvin);
  const double factor = 1.18 * pressurePart * temperaturePart - 0.18;
  if (factor > 0 && std::isfinite(factor)) return FixedText(factor, 3);
  return "";
}

}  // namespace tarnview
