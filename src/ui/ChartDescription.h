#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/Colour.h"
#include "ui/ChartAxis.h"
#include "ui/Surface.h"
#include "ui/Value.h"

namespace tarnview {

/// A line: style 1 is solid, 2 dotted, anything else dashed; width in tenths of an item's line
/// width (10 to 50).
struct Pen {
  Colour colour = 0;
  int style = 1;
  int width = 10;
  friend bool operator==(const Pen&, const Pen&) = default;
};

/// One curve.
struct ChartSeries {
  int id = 0;  ///< data item
  std::string name;
  std::vector<double> x;
  std::vector<double> y;  ///< as long as x
  Pen pen;
};

/// One or more curves over one X axis.
struct Curves {
  std::vector<ChartSeries> series;
};

/// The mark of a point, in the order and with the numbers that presets keep.
enum class PointShape : int {
  Ball,
  Circle,
  Dash,
  Diamond,
  DownTriangle,
  Plus,
  Square,
  Star,
  UpTriangle,
  Cross
};

/// One item against another: a mark for each sample and no lines. All lists are as long as `x`, or
/// empty.
struct PointCloud {
  int xItem = 0;  ///< data item
  int yItem = 0;
  std::vector<double> x;
  std::vector<double> y;
  std::vector<double> sample;  ///< the `Sample` value of each point
  PointShape shape = PointShape::Ball;
  int size = 1;  ///< 1 to 10
  Colour colour = 0;
  std::vector<double>
      tint;  ///< a third item that gives the points their colours; empty: all bear `colour`
  ChartAxis tintAxis;    ///< of the colour bar, where there is `tint`
  bool density = false;  ///< without `tint`: marks that fall together are shaded by their number
};

/// A point with what it says, over the curves: "141.2 hp".
struct ChartMark {
  double x = 0;
  double y = 0;
  std::string text;
  Colour colour = 0;
  bool ring = true;  ///< without, the text alone
  friend bool operator==(const ChartMark&, const ChartMark&) = default;
};

/// The colours of a chart: what lies behind it, its lines and texts, its grid.
struct ChartColours {
  bool systemBackdrop = false;  ///< the desktop's button face stands behind the chart
  Colour backdrop = 0xFFFFFF;
  Colour text = 0x000000;
  Colour grid = 0x000000;
};

/// A chart in plain numbers: rooms fill it in, the toolkit draws it, on screen, on paper and into
/// files alike.
struct ChartDescription {
  std::variant<Curves, PointCloud, Surface> kind;
  ChartAxis x;  ///< a surface has axes of its own
  ChartAxis y;
  std::vector<ChartMark> marks;  ///< of curves, those that everybody looks for: the peaks
  ChartColours colours;
  /// What else the drawer knows about the picture (range, step, rows): told with the chart, not
  /// drawn.
  Object facts;

  /// Null, or no series, for a chart of another kind.
  const PointCloud* Cloud() const { return std::get_if<PointCloud>(&kind); }
  const Surface* AsSurface() const { return std::get_if<Surface>(&kind); }
  const std::vector<ChartSeries>& Series() const;
};

/// `[{"x": 6480, "y": 141.2, "text": "141.2 hp"}]`
List Describe(const std::vector<ChartMark>& marks);
/// The chart as a tree of facts; `facts` come first.
Object Describe(const ChartDescription& chart);

}  // namespace tarnview
