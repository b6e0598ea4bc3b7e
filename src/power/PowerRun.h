#pragma once

#include <cstdint>
#include <vector>

#include "model/OpenLog.h"
#include "power/Air.h"
#include "power/PowerCurves.h"
#include "power/clsCarDef.h"

namespace tarnview {

/// A power graph takes runs of so many samples from the first to the last.
inline constexpr std::int32_t kLongestRun = 1000;
inline constexpr std::int32_t kShortestRun = 10;

struct RunSample {
  double seconds = 0;
  double rpm = 0;
};

/// One full-throttle run in one gear, and what the power is worked out with.
struct PowerRun {
  clsCarDef car;
  int gear = 0;                     ///< 0 for 1st to 5 for 6th
  std::int32_t contentsWeight = 0;  ///< in the car's units
  std::int32_t smoothing = 0;  ///< points to either side; below 1 leaves the curves as they are
  bool imperial = true;        ///< units of the result; the car's are its own
  bool corrected = false;
  double correction = 1;  ///< what power and torque are multiplied by where `corrected`
  Air air;
  std::vector<RunSample> samples;  ///< at most kLongestRun + 1
};

/// The samples of a log with a `Sample` value in from..to; no more than a power graph takes.
std::vector<RunSample> SamplesOfRun(const OpenLog& log, std::int32_t from, std::int32_t to);

/// The curves of a run: smoothed, corrected, averaged with `average` (in the run's units; nullptr:
/// not), with their peaks and top speed. A car that cannot be reckoned with gives `failed` and no
/// curves.
PowerCurves CurvesOf(const PowerRun& run, const std::vector<PowerPoint>* average = nullptr);

/// K of the car's drag: see GetSetPointDragCalcPart.
double DragOf(const clsCarDef& car, const Air& air);
/// Of car and contents, in the car's units.
std::int64_t TotalWeight(const PowerRun& run);

}  // namespace tarnview
