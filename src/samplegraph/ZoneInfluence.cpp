#include "samplegraph/ZoneInfluence.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "base/Numbers.h"
#include "zones/RowsAround.h"

namespace tarnview {
namespace {

/// A column every 500 RPM, the first at 500.
constexpr double kLeastRPM = 250;
constexpr double kMostRPM = 7749;
constexpr double kColumnRPM = 500;
constexpr int kColumnName = 5;  ///< hundreds of RPM from one column to the next
constexpr double kHalfColumn = 0.5;

std::int64_t ColumnFor(double rpm) {
  return static_cast<std::int64_t>(std::floor(rpm / kColumnRPM)) * kColumnName;
}

std::string ZoneNameOf(std::int64_t row, std::int64_t column) {
  return std::to_string(row) + PaddedText(column, 2);
}

}  // namespace

ZoneInfluence FindZoneInfluence(double rpm, double kPa, bool sixRows) {
  const RowsAround rows = RowsAroundMAP(kPa, sixRows);
  const double limited = std::clamp(rpm, kLeastRPM, kMostRPM);
  // Always one column apart.
  const std::int64_t low = ColumnFor(limited - kLeastRPM), high = ColumnFor(limited + kLeastRPM);
  ZoneInfluence found;
  found.lowerLow = ZoneNameOf(rows.lower, low);
  found.lowerHigh = ZoneNameOf(rows.lower, high);
  found.upperLow = ZoneNameOf(rows.upper, low);
  found.upperHigh = ZoneNameOf(rows.upper, high);
  found.up = rows.up;
  // A zone's name is the lower end of its column: its middle lies half a column further on.
  found.across =
      (limited / 100 - static_cast<double>(low)) / static_cast<double>(high - low) - kHalfColumn;
  return found;
}

}  // namespace tarnview
