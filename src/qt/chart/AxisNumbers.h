#pragma once

#include <string>
#include <vector>

#include "ui/ChartDescription.h"

namespace tarnview {

struct AxisNumber {
  double at = 0;
  std::string text;  ///< empty where a text would collide with its neighbour's
};

/// A number in a format such as "#######0.00".
std::string FormatNumber(double number, const std::string& format);

/// The divisions of an axis with their numbers; `length` and `textSize` (along the axis, with the
/// gap) in pixels.
std::vector<AxisNumber> AxisNumbers(const ChartAxis& axis, double length, double textSize);

}  // namespace tarnview
