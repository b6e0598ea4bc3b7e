#include "zones/RowsAround.h"

#include <algorithm>
#include <cmath>

namespace tarnview {
namespace {

/// A pair of neighbouring rows, for pressures above a bound, and the pressures at which they lie
/// (kPa).
struct RowPair {
  double above;
  int lower;
  double lowKPa;
  double highKPa;
};
constexpr RowPair kSixRows[] = {
    {83, 5, 84, 96}, {69, 4, 70, 83}, {56, 3, 57, 69}, {43, 2, 44, 56}, {-1, 1, 30, 43}};
constexpr double kLeastSixRowKPa = 30;
constexpr double kMostSixRowKPa = 96;

/// The other layout: a row every 40 kPa, the first at 20.
constexpr double kRowKPa = 40;
constexpr double kHalfRowKPa = 20;
constexpr double kMostKPa = 219;

RowsAround RowsOfSix(double kPa) {
  const double m = std::clamp(kPa, kLeastSixRowKPa, kMostSixRowKPa);
  const RowPair* pair = kSixRows;
  while (m <= pair->above) ++pair;
  return {pair->lower, pair->lower + 1, (m - pair->lowKPa) / (pair->highKPa - pair->lowKPa)};
}

RowsAround RowsOfForty(double kPa) {
  const double m = std::min(kPa, kMostKPa);
  const double lower = std::floor((m - kHalfRowKPa) / kRowKPa) + 1;
  const double upper = std::floor((m + kHalfRowKPa) / kRowKPa) + 1;
  return {static_cast<std::int64_t>(lower), static_cast<std::int64_t>(upper),
          (m - kHalfRowKPa) / kRowKPa + 1 - lower};
}

}  // namespace

RowsAround RowsAroundMAP(double kPa, bool sixRows) {
  if (sixRows) return RowsOfSix(kPa);
  return RowsOfForty(kPa);
}

}  // namespace tarnview
