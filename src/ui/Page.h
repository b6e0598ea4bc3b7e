#pragma once

#include <string>

namespace tarnview {

class Chart;

/// A place on a page, in twips (1440 to the inch) from its upper left corner.
struct PageRect {
  double left = 0, top = 0, width = 0, height = 0;
};

/// A sheet of paper to be filled. Lengths are in twips and count from the corner of the sheet;
/// texts are in Arial, their sizes in points.
class Page {
 public:
  virtual ~Page() = default;

  virtual double Width() const = 0;
  virtual double Height() const = 0;
  virtual double TextWidth(const std::string& text, int points) const = 0;
  virtual double LineHeight(int points) const = 0;
  /// Height of the chart's picture over its width, as its window shows it.
  virtual double ShapeOf(const Chart& chart) const = 0;

  /// `left` and `top` are the corner of the line.
  virtual void DrawText(const std::string& text, int points, double left, double top) = 0;
  virtual void DrawPicture(const Chart& chart, const PageRect& place) = 0;
};

}  // namespace tarnview
