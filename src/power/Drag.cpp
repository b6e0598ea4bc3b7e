#include "power/Drag.h"

#include <cmath>

#include "base/Numbers.h"
#include "base/Units.h"

namespace tarnview {
namespace {

double WattsIn(bool imperial) {
  if (imperial) return kWattsPerHorsepower;
  return 1000;
}
double MetresPerSecondIn(bool imperial) {
  if (imperial) return kMetresPerSecondInMph;
  return kMetresPerSecondInKmh;
}

}  // namespace

double GetSetPointDragCalcPart(double lngPower, double lngSpeed, bool blnImperial) {
  const double speed = lngSpeed * MetresPerSecondIn(blnImperial);
  return lngPower * WattsIn(blnImperial) / (speed * speed * speed);
}

double GetCdDragCalcPart(double dblCD, double dblFrontalArea, double dblPressure,
                         double dblTemperature, bool blnImperial) {
  constexpr double kZeroCelsius = 273.15;
  constexpr double kGasConstant = 0.28705;  // of dry air, kJ per kilogram and kelvin
  const double area = dblCD * dblFrontalArea * (blnImperial ? kSquareMetresPerSquareFoot : 1);
  const double density = dblPressure / ((dblTemperature + kZeroCelsius) * kGasConstant);
  return density * area * 0.5;
}

double TopSpeed(double peakPower, double k, bool imperial) {
  return CubeRoot(peakPower * WattsIn(imperial) / k) * (1 / MetresPerSecondIn(imperial));
}

double CubeRoot(double value) {
  if (value == 0 || !std::isfinite(value)) return value;
  constexpr int kMostSteps = 50;
  const double size = std::fabs(value);
  double x = std::pow(size, 1.0 / 3);
  for (int step = 0; step < kMostSteps; ++step) {
    const double next = (2 * x + size / (x * x)) / 3;
    if (next == x) break;
    x = next;
  }
  if (value < 0) return -x;
  return x;
}

std::string Cube_Root_Of(std::string_view value) {
  if (IsNumeric(value)) return NumberText(CubeRoot(StringToDouble(value)));
  return "ERROR: Invalid numeric argument";
}

double CDblStripUnits(std::string_view strValue) {
  constexpr std::size_t kLongestNumber = 400;  // the largest double has 309 digits
  for (std::size_t length = std::min(strValue.size(), kLongestNumber); length > 0; --length)
    if (const auto start = strValue.substr(0, length); IsNumeric(start))
      return StringToDouble(start);
  return 0;
}

}  // namespace tarnview
