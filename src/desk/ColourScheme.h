#pragma once

#include "ui/ChartDescription.h"

namespace tarnview {

/// Names of the colour schemes, from 1.
inline constexpr const char* kColourSchemes[] = {"Grey", "Black", "White"};

/// The colours of a chart in scheme 1 "Grey", 2 "Black" or, with any other number, 3 "White".
void SetGraphColourScheme(ChartDescription& chart, int intScheme);

}  // namespace tarnview
