#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarnview {

/// Steps between the lines of the vertical scale; the last serves whatever is higher.
inline constexpr std::array<std::int32_t, 8> glngGraphScaleSteps{1, 2, 5, 10, 20, 25, 50, 100};

struct VerticalScale {
  std::int64_t max = 0;
  std::int64_t divisions = 0;
  std::int64_t min = 0;  ///< below 0 where something is drawn there
};

/// The scale for a highest value: the first step that needs fewer than 13 lines, and one line of
/// room above.
VerticalScale ScaleForHighest(double highest);

/// The same where something is drawn below 0: as many whole steps below it as that needs. `lowest`
/// is 0 or below.
VerticalScale ScaleForRange(double lowest, double highest);
/// A scale that begins at 0, carried on below it in its own steps.
VerticalScale ReachingBelow(VerticalScale scale, double lowest);

/// The scale nearest to a maximum that the user typed: 33 becomes 35, 27 becomes 25, 250 becomes
/// 240.
VerticalScale ScaleForFixedMax(std::int32_t wanted);

/// How the time axis is labelled, by its span in seconds.
std::string TimeAxisFormat(double span);

/// Above this many table rows Quick Graph thins.
inline constexpr std::int32_t kQuickGraphRows = 500;
/// The widest range, To less From, that is drawn without Quick Graph.
inline constexpr std::int32_t kWidestFullRange = 1000;

/// Every how many store rows one is plotted; `plotSpan` counts the rows of an unthinned table,
/// heading included.
std::int32_t ThinStep(std::int32_t plotSpan, bool quick);

}  // namespace tarnview
