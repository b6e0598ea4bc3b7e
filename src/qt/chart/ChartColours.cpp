#include "qt/chart/ChartColours.h"

#include <algorithm>
#include <cstdlib>

#include "qt/Text.h"

namespace tarnview {
namespace {

/// How far the grid's grey lies from the backdrop's, of 255: seen when looked for.
constexpr int kGridContrast = 32;
/// Below this distance, of 255, a text on its backdrop is hard to read.
constexpr int kReadable = 110;

int Distance(const QColor& a, const QColor& b) { return std::abs(qGray(a.rgb()) - qGray(b.rgb())); }

}  // namespace

QColor Mix(const QColor& from, const QColor& to, double share) {
  const auto part = [&](int a, int b) { return static_cast<int>(a + (b - a) * share); };
  return QColor(part(from.red(), to.red()), part(from.green(), to.green()),
                part(from.blue(), to.blue()));
}

PaintedColours ToPaint(const ChartColours& colours, const QPalette& palette) {
  PaintedColours painted{ColourToQt(colours.backdrop), ColourToQt(colours.text),
                         ColourToQt(colours.grid)};
  if (colours.systemBackdrop) {
    painted.backdrop = palette.color(QPalette::Active, QPalette::Button);
    // On a dark desktop the button face is dark, and black would vanish on it.
    if (Distance(painted.backdrop, painted.text) < kReadable)
      painted.text = painted.grid = palette.color(QPalette::Active, QPalette::ButtonText);
  }
  const int distance = std::max(Distance(painted.backdrop, painted.grid), 1);
  painted.grid = Mix(painted.backdrop, painted.grid,
                     std::min(1.0, static_cast<double>(kGridContrast) / distance));
  return painted;
}

}  // namespace tarnview
