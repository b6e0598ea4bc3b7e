#pragma once

namespace tarnview {

// Conversion factors, each with its source. Factors are kept with the digits that the program has always used, since
// results are compared to the last digit.

/// Tenths of kPa to tenths of psi: 1 kPa = 0.14503774 psi (NIST SP 811, Appendix B).
inline constexpr double kPsiPerKPa = 0.14503774;
/// Tenths of kPa to tenths of inches of mercury: 1 kPa = 0.2953006 inHg (NIST SP 811, Appendix B, 0 degrees C).
inline constexpr double kInHgPerKPa = 0.2953006;
/// Seconds between two samples of an FM Link log: the logging program's tick.
inline constexpr double kFMLinkSecondsPerSample = 0.08192;
/// "Secs" is stored in ten-thousandths of a second.
inline constexpr double kStoredPerSecond = 10000;

}  // namespace tarnview
