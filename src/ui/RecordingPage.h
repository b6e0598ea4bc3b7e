#pragma once

#include <string>
#include <vector>

#include "ui/Page.h"

namespace tarnview {

/// A page without a printer: it remembers what was drawn. Every letter is half as wide as its line
/// is high.
class RecordingPage : public Page {
 public:
  struct Text {
    std::string text;
    int points;
    double left, top;
  };
  std::vector<Text> texts;
  std::vector<PageRect> pictures;
  double width = 8.5 * 1440, height = 11.0 * 1440;  ///< a sheet of Letter
  double shape = 0.5;

  double Width() const override { return width; }
  double Height() const override { return height; }
  double TextWidth(const std::string& text, int points) const override {
    return static_cast<double>(text.size()) * LineHeight(points) / 2;
  }
  double LineHeight(int points) const override { return points * 20.0; }
  double ShapeOf(const Chart&) const override { return shape; }
  void DrawText(const std::string& text, int points, double left, double top) override {
    texts.push_back({text, points, left, top});
  }
  void DrawPicture(const Chart&, const PageRect& place) override { pictures.push_back(place); }
};

}  // namespace tarnview
