#pragma once

#include <string>
#include <vector>

#include "ui/Value.h"

namespace tarnview {

/// Colours are 0xBBGGRR: red in the low byte.
using Colour = long;

/// A line: style 1 is solid, 2 dotted, anything else dashed; width in tenths of an item's line width (10 to 50).
struct Pen {
  Colour colour = 0;
  int style = 1;
  int width = 10;
};

/// One curve, or one cloud of points where `marker` says so.
struct ChartSeries {
  int id = 0;  ///< data item
  std::string name;
  std::vector<double> x;
  std::vector<double> y;  ///< as long as x
  Pen pen;
};

struct ChartAxis {
  double min = 0;
  double max = 1;
  int divisions = 10;  ///< major divisions between min and max
  std::string format;  ///< "#######0.0"
};

/// The colours of a chart: what lies behind it, its lines and texts, its grid.
struct ChartColours {
  bool systemBackdrop = false;  ///< the desktop's button face stands behind the chart
  Colour backdrop = 0xFFFFFF;
  Colour text = 0x000000;
  Colour grid = 0x000000;
};

/// A chart in plain numbers: rooms fill it in, the toolkit draws it, on screen, on paper and into files alike.
struct ChartDescription {
  std::vector<ChartSeries> series;
  ChartAxis x;
  ChartAxis y;
  ChartColours colours;
  /// What else the drawer knows about the picture (range, step, rows): told with the chart, not drawn.
  Object facts;
};

/// The chart as a tree of facts; `facts` come first.
Object Describe(const ChartDescription& chart);

}  // namespace tarnview
