#pragma once

namespace tarnview {

/// A colour is 0xBBGGRR: red in the low byte.
using Colour = long;
/// Stands for the desktop's own colour in that place.
inline constexpr Colour kDesktopColour = -1;

}  // namespace tarnview
