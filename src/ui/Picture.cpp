#include "ui/Picture.h"

namespace tarnview {

void Picture::Describe(Object& facts) const {
  List lines, circles;
  for (const Drawing::Line& line : drawing_().lines)
    lines.emplace_back(MakeList(std::vector<int>{line.x1, line.y1, line.x2, line.y2}));
  for (const Drawing::Circle& circle : drawing_().circles)
    circles.emplace_back(Object{
        {"x", circle.x}, {"y", circle.y}, {"radius", circle.radius}, {"filled", circle.filled}});
  List strokes;
  for (const Drawing::Stroke& stroke : drawing_().strokes)
    strokes.emplace_back(Object{
        {"colour", stroke.pen.colour}, {"style", stroke.pen.style}, {"width", stroke.pen.width}});
  facts.emplace_back("width", width_);
  facts.emplace_back("height", height_);
  if (BackColour >= 0) facts.emplace_back("colour", BackColour());
  facts.emplace_back("lines", std::move(lines));
  facts.emplace_back("circles", std::move(circles));
  if (!strokes.empty()) facts.emplace_back("strokes", std::move(strokes));
}

}  // namespace tarnview
