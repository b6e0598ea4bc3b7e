#pragma once

#include <string>
#include <vector>

#include "power/PowerCurves.h"

namespace tarnview {

/// What a speed graph shows.
struct SpeedGraphInput {
  std::string file;             ///< path of the log
  std::vector<SpeedPoint> run;  ///< metres per second
  std::vector<SpeedPoint> benchmark;
  bool benchmarkImperial = true;  ///< mph, else km/h
  bool imperial = true;           ///< what the window shows first
};

}  // namespace tarnview
