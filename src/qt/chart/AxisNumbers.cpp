#include "qt/chart/AxisNumbers.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarnview {
namespace {

/// More divisions than any screen has pixels are no axis.
constexpr int kMostDivisions = 1000;

/// Every how many divisions a number fits. One that divides the axis evenly, if any will do, labels
/// both of its ends.
int StepOf(int divisions, double length, double textSize) {
  const double each = std::max(length / divisions, 1e-6);
  const int least = std::clamp(static_cast<int>(std::ceil(textSize / each)), 1, divisions);
  for (int step = least; step <= std::min(divisions, least * 2); ++step)
    if (divisions % step == 0) return step;
  return least;
}

}  // namespace

std::string FormatNumber(double number, const std::string& format) {
  const auto point = format.find('.');
  int places = 0;
  if (point != std::string::npos)
    places = static_cast<int>(std::min<std::size_t>(format.size() - point - 1, 15));
  char text[400];
  std::snprintf(text, sizeof text, "%.*f", places, number);
  const std::string shown = text;
  if (shown.find_first_not_of("-0.") == std::string::npos && shown[0] == '-')
    return shown.substr(1);
  return shown;
}

std::vector<AxisNumber> AxisNumbers(const ChartAxis& axis, double length, double textSize) {
  const int divisions = std::clamp(axis.divisions, 1, kMostDivisions);
  const int step = StepOf(divisions, length, textSize);
  std::vector<AxisNumber> numbers;
  for (int i = 0; i <= divisions; ++i) {
    const double at = axis.min + (axis.max - axis.min) * i / divisions;
    numbers.push_back({at, i % step == 0 ? FormatNumber(at, axis.format) : std::string()});
  }
  return numbers;
}

}  // namespace tarnview
