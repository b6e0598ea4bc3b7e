#include <gtest/gtest.h>

#include <cmath>

#include "base/Units.h"
#include "power/Drag.h"
#include "power/DriveWheel.h"
#include "power/PowerRun.h"

namespace tarnview {
namespace {

/// Watts of a naturally aspirated engine of 1.8 litres: 105 kW at 6500 rpm, and less to either
/// side.
double EnginePower(double rpm) {
  const double x = rpm / 6500;
  return 105000 * (x + x * x - x * x * x);
}

/// A pull in one gear from 2000 to 7000 rpm, driven in steps of a tenth of a millisecond and
/// written down as a logger does: whole rpm, so many lines a second.
std::vector<RunSample> Pull(const PowerRun& run, double linesPerSecond) {
  constexpr double kStep = 0.0001;
  const double perRpm = SpeedPerRpm(run.car, run.gear);
  const double mass = static_cast<double>(TotalWeight(run)) * kKilogramsPerPound;
  const double drag = DragOf(run.car, run.air), loss = 1 + GearLoss(run.car, run.gear) / 100.0;
  const int stepsPerLine = static_cast<int>(std::lround(1 / (linesPerSecond * kStep)));
  std::vector<RunSample> samples;
  double speed = 2000 * perRpm;
  for (int step = 0; speed < 7000 * perRpm; ++step) {
    if (step % stepsPerLine == 0) samples.push_back({step * kStep, std::round(speed / perRpm)});
    const double force = EnginePower(speed / perRpm) / loss / speed - drag * speed * speed;
    speed += force / mass * kStep;
  }
  return samples;
}

/// The largest error, per cent of the true power, of the points but the first and last of the
/// smoothing's reach.
double WorstError(const PowerRun& run) {
  double worst = 0;
  const PowerCurves curves = CurvesOf(run);
  const auto reach = static_cast<std::size_t>(run.smoothing);
  for (std::size_t i = reach; i + reach < curves.points.size(); ++i) {
    const PowerPoint& p = curves.points[i];
    worst =
        std::max(worst, std::fabs(p.power * kWattsPerHorsepower / EnginePower(p.rpm) - 1) * 100);
  }
  return worst;
}

// The example of the manual: ten lines a second, the smoothing of a new car definition.
TEST(TruePower, OfALoggedPullIsFoundWithinThreePerCent) {
  for (const int gear : {1, 2, 3}) {
    PowerRun run;
    run.gear = gear;
    run.contentsWeight = run.car.lngCarContentsWeight;
    run.smoothing = run.car.lngSmoothingFactor;
    run.samples = Pull(run, 10);
    ASSERT_GT(run.samples.size(), 3u * 7);
    EXPECT_LT(WorstError(run), 3) << gear;
    EXPECT_NEAR(CurvesOf(run).peaks.power * kWattsPerHorsepower, 105000, 3150) << gear;
  }
}

}  // namespace
}  // namespace tarnview
