#pragma once

#include <array>

#include "base/Colour.h"

namespace tarnview {

/// Colours of a quantity from low to high, evenly spaced: lightness rises evenly, and no step rests
/// on red against green. Between two stops, HeatColourOf mixes.
inline constexpr std::array<Colour, 7> kHeatColours{
    // Seven of the ten colours of the scale "viridis" (van der Walt and Smith, 2015, public
    // domain): the darkest two
    // would vanish on black, the brightest on white.
    0x894A3E, 0x8E6831, 0x8E8226, 0x899E1F, 0x79B735, 0x59CD6D, 0x2CDEB4};

/// At a share of the way from low (0) to high (1); beyond them, the ends.
Colour HeatColourOf(double share);

}  // namespace tarnview
