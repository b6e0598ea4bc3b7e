#include "scatter/ScatterScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnview {
namespace {

/// At most so many divisions, before the limits move out to whole steps.
constexpr double kMostDivisions = 10;
/// Beyond this an axis has no room for the digits.
constexpr int kMostPlaces = 6;

struct Span {
  double low = std::numeric_limits<double>::max(), high = std::numeric_limits<double>::lowest();
};

/// So far out there is no room for an axis about the value; no number and the endless lie there
/// too.
constexpr double kBeyond = 1e300;
/// Of what is smaller, a double has not digits enough to tell steps apart.
constexpr double kAsZero = 1e-100, kAsEqual = 1e-12;

/// What arithmetic may be off: 0.3 counts as three steps of 0.1.
constexpr double kSlack = 1e-9;

/// A tenth of the span; taken apart, since the whole of it may be beyond a double.
double Tenth(const Span& span) { return span.high / kMostDivisions - span.low / kMostDivisions; }

Span SpanOf(const std::vector<double>& values) {
  Span span;
  for (const double value : values) {
    if (!(std::fabs(value) < kBeyond)) continue;
    span.low = std::min(span.low, value);
    span.high = std::max(span.high, value);
  }
  if (span.low > span.high) return {0, 1};
  const double size = std::max(std::fabs(span.low), std::fabs(span.high));
  if (size > kAsZero && Tenth(span) > kAsEqual * size) return span;
  // One value alone: a tenth of it to each side, or a whole unit about zero.
  double room = 1;
  if (size > kAsZero) room = size / 10;
  return {span.low - room, span.high + room};
}

/// The least of 1, 2, 5 times a power of ten that is not below `wanted` (above 0).
double RoundStep(double wanted) {
  const double power = std::pow(10, std::floor(std::log10(wanted)));
  for (const double factor : {1, 2, 5})
    if (factor * power >= wanted * (1 - kSlack)) return factor * power;
  return 10 * power;
}

}  // namespace

ChartAxis AutomaticAxis(const std::vector<double>& values, std::string title) {
  const Span span = SpanOf(values);
  const double step = RoundStep(Tenth(span));
  const double first = std::floor(span.low / step + kSlack),
               last = std::ceil(span.high / step - kSlack);
  const int places =
      std::clamp(static_cast<int>(std::ceil(-std::log10(step) - kSlack)), 0, kMostPlaces);
  std::string fraction;
  if (places != 0) fraction = "." + std::string(static_cast<std::size_t>(places), '0');
  return {first * step, last * step, static_cast<int>(last - first), "#######0" + fraction,
          std::move(title)};
}

}  // namespace tarnview
