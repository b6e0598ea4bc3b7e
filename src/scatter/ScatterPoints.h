#pragma once

#include <vector>

#include "model/OpenLog.h"
#include "presets/clsScatterFilter.h"

namespace tarnview {

/// One item against another for the samples that pass the filters: three lists of one length.
struct ScatterPoints {
  std::vector<double> x;
  std::vector<double> y;
  std::vector<double> sample;  ///< `Sample` values
};

}  // namespace tarnview
