#include "samplegraph/ZoneInfluence.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "base/Numbers.h"

namespace tarnview {
namespace {

/// A pair of neighbouring rows, for pressures above a bound, and the pressures at which they lie (kPa).
struct RowPair {
  double above;
  int lower;
  double lowKPa;
  double highKPa;
};
constexpr RowPair kSixRows[] = {{83, 5, 84, 96}, {69, 4, 70, 83}, {56, 3, 57, 69}, {43, 2, 44, 56}, {-1, 1, 30, 43}};
constexpr double kLeastSixRowKPa = 30;
constexpr double kMostSixRowKPa = 96;

/// The other layout: a row every 40 kPa, the first at 20.
constexpr double kRowKPa = 40;
constexpr double kHalfRowKPa = 20;
constexpr double kMostKPa = 219;

/// A column every 500 RPM, the first at 500.
constexpr double kLeastRPM = 250;
constexpr double kMostRPM = 7749;
constexpr double kColumnRPM = 500;
constexpr int kColumnName = 5;  ///< hundreds of RPM from one column to the next
constexpr double kHalfColumn = 0.5;

struct Rows {
  std::int64_t lower;
  std::int64_t upper;
  double up;
};

Rows RowsOfSix(double kPa) {
  const double m = std::clamp(kPa, kLeastSixRowKPa, kMostSixRowKPa);
  const RowPair* pair = kSixRows;
  while (m <= pair->above) ++pair;
  return {pair->lower, pair->lower + 1, (m - pair->lowKPa) / (pair->highKPa - pair->lowKPa)};
}

Rows RowsOfForty(double kPa) {
  const double m = std::min(kPa, kMostKPa);
  const double lower = std::floor((m - kHalfRowKPa) / kRowKPa) + 1;
  const double upper = std::floor((m + kHalfRowKPa) / kRowKPa) + 1;
  return {static_cast<std::int64_t>(lower), static_cast<std::int64_t>(upper), (m - kHalfRowKPa) / kRowKPa + 1 - lower};
}

std::int64_t ColumnFor(double rpm) { return static_cast<std::int64_t>(std::floor(rpm / kColumnRPM)) * kColumnName; }

std::string ZoneNameOf(std::int64_t row, std::int64_t column) { return std::to_string(row) + PaddedText(column, 2); }

}  // namespace

ZoneInfluence FindZoneInfluence(double rpm, double kPa, bool sixRows) {
  const Rows rows = sixRows ? RowsOfSix(kPa) : RowsOfForty(kPa);
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
  found.across = (limited / 100 - static_cast<double>(low)) / static_cast<double>(high - low) - kHalfColumn;
  return found;
}

}  // namespace tarnview
