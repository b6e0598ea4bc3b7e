#pragma once

#include <vector>

#include "ui/ChartDescription.h"
#include "ui/Control.h"

namespace tarnview {

/// A small drawing in plain numbers. Lengths are twips (1/1440 inch, 15 to a pixel at 96 dpi), from
/// the top left.
struct Drawing {
  struct Line {
    int x1, y1, x2, y2;
    friend bool operator==(const Line&, const Line&) = default;
  };
  struct Circle {
    int x, y, radius;
    bool filled;
    friend bool operator==(const Circle&, const Circle&) = default;
  };
  struct Stroke {
    Line line;
    Pen pen;
    friend bool operator==(const Stroke&, const Stroke&) = default;
  };
  std::vector<Line> lines;  ///< in the colour of the desktop's buttons
  std::vector<Circle> circles;
  std::vector<Stroke> strokes = {};  ///< as a chart draws its curves
  friend bool operator==(const Drawing&, const Drawing&) = default;
};

/// The control that shows a drawing, or nothing but a colour. Its size is the toolkit's to say.
class Picture : public Control {
 public:
  Picture(Form& owner, std::string itsName, int width, int height)
      : Control(owner, std::move(itsName)),
        width_(width),
        height_(height),
        drawing_(Shown(Drawing{})) {}

  Event<> Resize;  ///< Width or Height has changed: what was drawn fits no more

  int Width() const { return width_; }  ///< twips
  int Height() const { return height_; }
  void SetSize(int width, int height) {
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    Resize();
  }

  /// 0xBBGGRR of what lies behind the drawing; -1 for the desktop's own.
  Property<long> BackColour = Shown(-1L);

  const Drawing& Shapes() const { return drawing_; }
  void Draw(Drawing drawing) { drawing_ = std::move(drawing); }
  void Cls() { drawing_ = Drawing{}; }

  std::string_view Kind() const override { return "picture"; }
  void Describe(Object& facts) const override;

 private:
  int width_, height_;
  Property<Drawing> drawing_;
};

}  // namespace tarnview
