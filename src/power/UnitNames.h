#pragma once

namespace tarnview {

/// The units of a run as they stand behind a number, blank and all.
struct UnitNames {
  const char *power, *torque, *speed;
  const char *weight, *area, *radius;
  const char* distance;  ///< that a tyre's revolutions are counted on
};

inline const UnitNames& UnitNamesOf(bool imperial) {
  static constexpr UnitNames kMetric{" kW", " Nm", " kmh", " kg", " m2", " mm ", "Km "};
  static constexpr UnitNames kImperial{" hp", " lbft", " mph", " lb", " ft2", " in ", "Mile "};
  if (imperial) return kImperial;
  return kMetric;
}

}  // namespace tarnview
