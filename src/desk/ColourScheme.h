#pragma once

#include "ui/Chart.h"

namespace tarnview {

/// Names of the colour schemes, from 1.
inline constexpr const char* kColourSchemes[] = {"Grey", "Black", "White"};

/// The colours of a chart in scheme 1 "Grey", 2 "Black" or, with any other number, 3 "White".
void SetGraphColourScheme(ChartDescription& chart, int intScheme);

/// Gives a chart on show the colours of a scheme; what is drawn and what is selected stay.
void TakeColourScheme(Chart& chart, int intScheme);

}  // namespace tarnview
