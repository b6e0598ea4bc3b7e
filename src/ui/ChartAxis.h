#pragma once

#include <string>

namespace tarnview {

struct ChartAxis {
  double min = 0;
  double max = 1;
  int divisions = 10;      ///< major divisions between min and max
  std::string format;      ///< "#######0.0"
  std::string title = {};  ///< empty for none
  int minorDivisions = 1;  ///< parts of a major division; 1 for no ticks between
};

}  // namespace tarnview
