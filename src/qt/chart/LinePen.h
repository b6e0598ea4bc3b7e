#pragma once

#include <QPen>

#include "ui/ChartDescription.h"

namespace tarnview {

/// Line width in pixels of a pen's width (10 to 50): 1 to 3.
double PixelsOfPen(int width);

QPen PenOf(const Pen& pen);

}  // namespace tarnview
