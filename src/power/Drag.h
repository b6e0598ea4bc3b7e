#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnview {

// Power lost to drag is K times the cube of the speed; K is in watts per (metre per second) cubed.

/// K of a car that needs `lngPower` (hp or kW) to hold `lngSpeed` (mph or km/h); not finite for a
/// speed of 0.
double GetSetPointDragCalcPart(double lngPower, double lngSpeed, bool blnImperial);

/// K of a drag coefficient and a frontal area (square feet or metres) in air of kPa and degrees C.
double GetCdDragCalcPart(double dblCD, double dblFrontalArea, double dblPressure,
                         double dblTemperature, bool blnImperial);

/// mph or km/h at which drag takes all of `peakPower` (hp or kW); not finite for a K of 0.
double TopSpeed(double peakPower, double k, bool imperial);

/// By Newton's steps; 0 of 0, of a negative number the negative root.
double CubeRoot(double value);
/// The same of a text: "-3" of "-27"; "ERROR: Invalid numeric argument" of a text that is no
/// number.
std::string Cube_Root_Of(std::string_view value);

/// The number that a text with a unit starts with: 110 of "110 hp", 1000 of "1e3". 0 if there is
/// none.
double CDblStripUnits(std::string_view strValue);

}  // namespace tarnview
