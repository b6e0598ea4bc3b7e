#include "qt/chart/PointShades.h"

#include <algorithm>
#include <cmath>

#include "qt/Text.h"
#include "ui/HeatColours.h"

namespace tarnview {
namespace {

/// More shades than an eye tells apart; fewer would make steps.
constexpr int kShades = 64;

int ShadeOf(double share) {
  return static_cast<int>(std::lrint(std::clamp(share, 0.0, 1.0) * (kShades - 1)));
}

template <class ColourAt>
std::vector<QColor> Scale(ColourAt colourAt) {
  std::vector<QColor> colours;
  for (int i = 0; i < kShades; ++i)
    colours.push_back(colourAt(static_cast<double>(i) / (kShades - 1)));
  return colours;
}

std::vector<QColor> ShadeByTint(std::vector<PlacedPoint>& placed, const PointCloud& cloud,
                                const PaintedColours& colours) {
  const ChartAxis& axis = cloud.tintAxis;
  double span = 1;
  if (axis.max > axis.min) span = axis.max - axis.min;
  for (PlacedPoint& one : placed) {
    const auto point = static_cast<std::size_t>(one.point);
    const double share = point < cloud.tint.size() ? (cloud.tint[point] - axis.min) / span : NAN;
    if (std::isfinite(share))
      one.shade = ShadeOf(share);
    else
      one.shade = kShades;
  }
  std::vector<QColor> shades = Scale(HeatColour);
  // A point without a value is there, and out of the scale.
  shades.push_back(Mix(colours.backdrop, colours.text, 0.4));
  return shades;
}

/// From a tint of the backdrop through the mark's own colour towards the colour of texts, which the
/// backdrop contrasts most with: so it works on every backdrop.
QColor DensityColour(double share, const QColor& own, const PaintedColours& colours) {
  constexpr double kFaintest = 0.45, kOwn = 0.55, kDeepest = 0.6;
  if (share < kOwn) return Mix(colours.backdrop, own, kFaintest + (1 - kFaintest) * share / kOwn);
  return Mix(own, colours.text, kDeepest * (share - kOwn) / (1 - kOwn));
}

std::vector<QColor> ShadeByDensity(std::vector<PlacedPoint>& placed, const PointCloud& cloud,
                                   const PixelGrid& grid, int reach,
                                   const PaintedColours& colours) {
  const std::vector<int> counts = CountAround(cloud, grid, placed, reach);
  int most = 1;
  if (!counts.empty()) most = *std::max_element(counts.begin(), counts.end());
  const double whole = std::log(std::max(most, 2));
  for (std::size_t i = 0; i < placed.size(); ++i)
    placed[i].shade = ShadeOf(std::log(counts[i]) / whole);
  std::stable_sort(placed.begin(), placed.end(),
                   [](const PlacedPoint& a, const PlacedPoint& b) { return a.shade < b.shade; });
  const QColor own = ColourToQt(cloud.colour);
  return Scale([&](double share) { return DensityColour(share, own, colours); });
}

}  // namespace

QColor HeatColour(double share) { return ColourToQt(HeatColourOf(share)); }

std::vector<QColor> Shade(std::vector<PlacedPoint>& placed, const PointCloud& cloud,
                          const PixelGrid& grid, int reach, const PaintedColours& colours) {
  if (!cloud.tint.empty()) return ShadeByTint(placed, cloud, colours);
  if (cloud.density) return ShadeByDensity(placed, cloud, grid, reach, colours);
  return {ColourToQt(cloud.colour)};
}

}  // namespace tarnview
