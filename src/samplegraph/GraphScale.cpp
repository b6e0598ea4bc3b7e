#include "samplegraph/GraphScale.h"

#include <cmath>

#include "base/Numbers.h"

namespace tarnview {
namespace {

/// Lines below which a step is taken.
constexpr std::int64_t kMostLines = 13;

struct Fit {
  std::int64_t step;
  std::int64_t lines;
};

Fit FirstFit(double value) {
  Fit fit{};
  for (std::int32_t step : glngGraphScaleSteps) {
    fit = {step, static_cast<std::int64_t>(RoundHalfEven(value / step))};
    if (fit.lines < kMostLines) break;
  }
  return fit;
}

}  // namespace

VerticalScale ScaleForHighest(double highest) {
  const Fit fit = FirstFit(RoundHalfEven(highest));
  return {fit.step * (fit.lines + 1), fit.lines + 1};
}

VerticalScale ReachingBelow(VerticalScale scale, double lowest) {
  if (!(lowest < 0) || scale.divisions < 1) return scale;
  const std::int64_t step = scale.max / scale.divisions;
  const auto below = static_cast<std::int64_t>(std::ceil(-lowest / static_cast<double>(step)));
  return {scale.max, scale.divisions + below, -step * below};
}

VerticalScale ScaleForRange(double lowest, double highest) {
  if (!(-lowest > highest)) return ReachingBelow(ScaleForHighest(highest), lowest);
  // The deeper side says how large a step is.
  const std::int64_t step = FirstFit(RoundHalfEven(-lowest)).step;
  const auto above =
      static_cast<std::int64_t>(RoundHalfEven(highest / static_cast<double>(step))) + 1;
  return ReachingBelow({step * above, above}, lowest);
}

VerticalScale ScaleForFixedMax(std::int32_t wanted) {
  const Fit fit = FirstFit(wanted);
  return {fit.step * fit.lines, fit.lines};
}

std::string TimeAxisFormat(double span) {
  if (span < 1) return "#######0.00";
  if (span < 10) return "#######0.0";
  return "#######0";
}

std::int32_t ThinStep(std::int32_t plotSpan, bool quick) {
  if (!quick || plotSpan <= kQuickGraphRows) return 1;
  return RoundToLong((plotSpan - 1) / static_cast<double>(kQuickGraphRows));
}

}  // namespace tarnview
