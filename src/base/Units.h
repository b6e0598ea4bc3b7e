#pragma once

namespace tarnview {

// Conversion factors, each with its source. Factors are kept with the digits that the program has
// always used, since results are compared to the last digit.

/// Tenths of kPa to tenths of psi: 1 kPa = 0.14503774 psi (NIST SP 811, Appendix B).
inline constexpr double kPsiPerKPa = 0.14503774;
/// Tenths of kPa to tenths of inches of mercury: 1 kPa = 0.2953006 inHg (NIST SP 811, Appendix B, 0
/// degrees C).
inline constexpr double kInHgPerKPa = 0.2953006;
/// Seconds between two samples of an FM Link log: the logging program's tick.
inline constexpr double kFMLinkSecondsPerSample = 0.08192;
/// Watts in a mechanical horsepower (NIST SP 811, Appendix B: 745.6999).
inline constexpr double kWattsPerHorsepower = 745.69987;
/// Foot-pounds of torque in a newton metre (1 / 1.3558, NIST SP 811), with the digits of the power
/// files in use.
inline constexpr double kFootPoundsPerNm = 0.73692;
/// Horsepower is torque in foot-pounds times rpm by this: 33000 foot-pounds a minute over two pi.
inline constexpr double kRpmFootPoundsPerHorsepower = 5252.1131;
/// Metres per second in a mile per hour (exact) and in a kilometre per hour (1 / 3.6).
inline constexpr double kMetresPerSecondInMph = 0.44704;
inline constexpr double kMetresPerSecondInKmh = 0.27778;
/// Kilograms in a pound (exactly 0.45359237).
inline constexpr double kKilogramsPerPound = 0.45359;
/// Metres in a statute mile, millimetres in an inch: exact.
inline constexpr double kMetresPerMile = 1609.344;
inline constexpr double kMillimetresPerInch = 25.4;
/// Square metres in a square foot (exactly 0.09290304).
inline constexpr double kSquareMetresPerSquareFoot = 0.092903;
/// "Secs" is stored in ten-thousandths of a second.
inline constexpr double kStoredPerSecond = 10000;

}  // namespace tarnview
