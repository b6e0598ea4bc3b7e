#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnview {

/// hp and foot-pounds, or kW and Nm.
struct PowerPoint {
  double rpm = 0;
  double power = 0;
  double torque = 0;
};

struct SpeedPoint {
  double seconds = 0;
  double speed = 0;
};

/// The first of equal highest points counts, and only what is above 0: without such a point a peak
/// is 0 at 0 rpm.
struct PowerPeaks {
  double power = 0, powerRpm = 0;
  double torque = 0, torqueRpm = 0;
  double maxRpm = 0;
  std::optional<double>
      topSpeed;  ///< mph or km/h, to one place; nothing where the drag is not known
};

PowerPeaks PeaksOf(const std::vector<PowerPoint>& points);

/// What a run gives. All numbers in it are finite.
struct PowerCurves {
  bool imperial = true;
  std::vector<PowerPoint> points;
  /// For each point, in metres per second, and of a last sample without a point.
  std::vector<SpeedPoint> speed;
  PowerPeaks peaks;
  bool failed = false;
  std::string
      fault;  ///< of a run that failed: the field of the car that is to blame, where it is known
};

/// Points in the other units, or as they are.
std::vector<PowerPoint> InUnits(std::vector<PowerPoint> points, bool areImperial, bool toImperial);

/// The mean of each point with what the benchmark, in the same units, has at its rpm, on the
/// straight line between the first two neighbours of the benchmark (in its order) that it lies
/// between. Beyond the benchmark a point stays.
void AverageWith(std::vector<PowerPoint>& points, const std::vector<PowerPoint>& benchmark);

}  // namespace tarnview
