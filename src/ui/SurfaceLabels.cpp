// The numbers and names along the edges of a surface's box.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "ui/SurfaceBox.h"

namespace tarnview {
namespace {

/// An edge of the box with its texts, spread evenly from one end to the other.
struct Edge {
  ScenePoint from, to;
  std::vector<std::string> texts;
  std::string title;
};

struct Rect {
  double left, top, right, bottom;
  bool Meets(const Rect& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

/// Lines of text between an edge and its labels, and again between those and the title.
constexpr double kGap = 0.5;
/// Looked at from above, an upright edge is too short for a title: the cosine of 80 degrees.
constexpr double kLeastUpright = 0.17;

class Labels {
 public:
  Labels(const SurfaceBox& box, std::vector<SceneLabel>& labels)
      : box_(box), room_(box.Room()), labels_(labels) {}

  void Add(const Edge& edge);
  /// A title over the upper end of an upright edge.
  void AddOver(const std::string& title, ScenePoint at);

 private:
  Rect RectOf(const SceneLabel& label) const;
  SceneLabel Beside(const std::string& text, ScenePoint at, ScenePoint away, double gap) const;
  /// The step at which the texts of an edge stand clear of each other.
  std::size_t StepOf(const Edge& edge, ScenePoint away) const;
  bool Take(const SceneLabel& label);
  bool TakeNear(const std::string& text, ScenePoint at, ScenePoint away);

  const SurfaceBox& box_;
  const SceneRoom& room_;
  std::vector<SceneLabel>& labels_;
  std::vector<Rect> taken_;
};

ScenePoint Between(const Edge& edge, double share) {
  return {edge.from.x + (edge.to.x - edge.from.x) * share,
          edge.from.y + (edge.to.y - edge.from.y) * share};
}

double LengthOf(const Edge& edge) {
  return std::hypot(edge.to.x - edge.from.x, edge.to.y - edge.from.y);
}

Rect Labels::RectOf(const SceneLabel& label) const {
  const double halfWidth = room_.widthOf(label.text) / 2 + room_.line / 6,
               halfHeight = room_.line / 2;
  return {label.centre.x - halfWidth, label.centre.y - halfHeight, label.centre.x + halfWidth,
          label.centre.y + halfHeight};
}

SceneLabel Labels::Beside(const std::string& text, ScenePoint at, ScenePoint away,
                          double gap) const {
  const double reach =
      std::abs(away.x) * room_.widthOf(text) / 2 + std::abs(away.y) * room_.line / 2 + gap;
  return {text, {at.x + away.x * reach, at.y + away.y * reach}};
}

std::size_t Labels::StepOf(const Edge& edge, ScenePoint away) const {
  const std::size_t last = edge.texts.size() - 1;
  for (std::size_t step = 1; step < last; ++step) {
    const double share = static_cast<double>(step) / static_cast<double>(last);
    bool clear = true;
    for (std::size_t i = 0; i + step <= last && clear; i += step)
      clear = !RectOf(Beside(edge.texts[i], Between(edge, 0), away, 0))
                   .Meets(RectOf(Beside(edge.texts[i + step], Between(edge, share), away, 0)));
    if (clear) return step;
  }
  return std::max<std::size_t>(last, 1);
}

bool Labels::Take(const SceneLabel& label) {
  const Rect rect = RectOf(label);
  if (rect.left < 0 || rect.top < 0 || rect.right > room_.width || rect.bottom > room_.height)
    return false;
  if (std::any_of(taken_.begin(), taken_.end(), [&](const Rect& one) { return one.Meets(rect); }))
    return false;
  taken_.push_back(rect);
  labels_.push_back(label);
  return true;
}

/// Where two edges meet, the second one's text stands a little farther off.
bool Labels::TakeNear(const std::string& text, ScenePoint at, ScenePoint away) {
  for (double gap : {kGap, 2 * kGap, 3 * kGap, 4 * kGap})
    if (Take(Beside(text, at, away, gap * room_.line))) return true;
  return false;
}

void Labels::Add(const Edge& edge) {
  // Seen from its end, an edge has no room for texts.
  const double length = LengthOf(edge);
  if (length < 2 * room_.line || edge.texts.size() < 2) return;
  ScenePoint away{(edge.to.y - edge.from.y) / length, -(edge.to.x - edge.from.x) / length};
  const ScenePoint middle = Between(edge, 0.5), centre = box_.At(0, 0, 0);
  if ((middle.x - centre.x) * away.x + (middle.y - centre.y) * away.y < 0)
    away = {-away.x, -away.y};
  const double gap = kGap * room_.line;
  double widest = 0;
  for (std::size_t i = 0, step = StepOf(edge, away); i < edge.texts.size(); i += step) {
    const double share = static_cast<double>(i) / static_cast<double>(edge.texts.size() - 1);
    if (TakeNear(edge.texts[i], Between(edge, share), away))
      widest = std::max(widest, room_.widthOf(edge.texts[i]));
  }
  if (edge.title.empty()) return;
  const double past = gap * 2 + std::abs(away.x) * widest + std::abs(away.y) * room_.line;
  Take(Beside(edge.title, middle, away, past));
}

void Labels::AddOver(const std::string& title, ScenePoint at) {
  if (!title.empty()) Take({title, {at.x, at.y - 1.4 * room_.line}});
}

std::vector<std::string> HeightTexts(const ChartAxis& axis) {
  std::vector<std::string> texts;
  const int divisions = std::max(axis.divisions, 1);
  for (int i = 0; i <= divisions; ++i) {
    char text[40];
    std::snprintf(text, sizeof text, "%.6g", axis.min + (axis.max - axis.min) * i / divisions);
    texts.emplace_back(text);
  }
  return texts;
}

}  // namespace

void AddLabels(const SurfaceBox& box, std::vector<SceneLabel>& labels) {
  const double nearX = box.NearX(), nearY = box.NearY(), floor = box.Z(0), roof = box.Z(1);
  const double left = box.X(0), right = -left, back = box.Y(0), front = -back;
  Labels all(box, labels);
  const Surface& table = box.Table();
  all.Add(
      {box.At(left, nearY, floor), box.At(right, nearY, floor), table.columns, table.columnTitle});
  all.Add({box.At(nearX, back, floor), box.At(nearX, front, floor), table.rows, table.rowTitle});
  // The upright edge at the left of the picture is never in front of the ground.
  const ScenePoint one = box.At(-nearX, nearY, floor), other = box.At(nearX, -nearY, floor);
  const bool first = one.x < other.x;
  const double x = first ? -nearX : nearX, y = first ? nearY : -nearY;
  all.Add({box.At(x, y, floor), box.At(x, y, roof), HeightTexts(table.height), ""});
  if (box.Eye().CosTilt() > kLeastUpright) all.AddOver(table.height.title, box.At(x, y, roof));
}

}  // namespace tarnview
