#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnview {

/// What a unit measures. Units of one quantity turn into each other; those of Other do not.
enum class Quantity {
  Other,
  Time,
  Pressure,
  Temperature,
  Speed,
  AirFuel,
  Flow,
  Angle,
  Share,
  Voltage,
  EngineSpeed
};

/// A value in this unit is value x factor + offset in the quantity's first one (s, kPa, degrees C,
/// km/h, AFR of petrol, g/s, degrees, %, V, rpm).
struct Unit {
  const char* name;
  Quantity quantity;
  double factor = 1, offset = 0;
  const char* others = "";  ///< further spellings, with a blank around each
};

/// By any of its spellings: case, blanks, brackets and degree signs do not matter. nullptr for no
/// unit.
const Unit* FindUnit(std::string_view text);
inline bool IsUnit(std::string_view text) { return FindUnit(text) != nullptr; }

/// What makes a value in one unit one in another: value x factor + offset.
struct UnitConversion {
  double factor = 1, offset = 0;
};
/// Nothing for units of different quantities, or of Other ones that differ.
std::optional<UnitConversion> ConversionOf(const Unit& from, const Unit& to);

/// The unit in the last brackets of a title ("Boost (psi)", "AFR [:1]"), which are taken off it; ""
/// for none.
std::string TakeUnit(std::string& title);

}  // namespace tarnview
