#include "ui/SurfaceBox.h"

#include <algorithm>
#include <cmath>

namespace tarnview {
namespace {

// Half the sides of the box: a map has more columns than rows, and hills that are not too steep to
// look behind.
constexpr double kHalfWidth = 0.8;
constexpr double kHalfDepth = 0.5;
constexpr double kHalfHeight = 0.26;

/// Lines of text that the labels and titles of the axes take around the box, beside the widest
/// label.
constexpr double kLinesBeside = 1.5;
constexpr double kLinesBelow = 3.5;
constexpr double kLinesAbove = 1.5;

double WidestLabel(const Surface& surface, const SceneRoom& room) {
  double widest = 0;
  for (const std::string& text : surface.rows) widest = std::max(widest, room.widthOf(text));
  for (const std::string& text : surface.columns) widest = std::max(widest, room.widthOf(text));
  return widest;
}

bool MakesSurface(const Surface& surface) {
  return surface.rows.size() > 1 && surface.columns.size() > 1 &&
         surface.values.size() == surface.rows.size() * surface.columns.size();
}

}  // namespace

SurfaceBox::SurfaceBox(const Surface& surface, const SceneRoom& room)
    : surface_(surface), room_(room), eye_(surface.view), empty_(!MakesSurface(surface)) {
  const double right = std::max(std::abs(eye_.Right(kHalfWidth, kHalfDepth)),
                                std::abs(eye_.Right(kHalfWidth, -kHalfDepth)));
  const double back = std::max(std::abs(eye_.Back(kHalfWidth, kHalfDepth)),
                               std::abs(eye_.Back(kHalfWidth, -kHalfDepth)));
  const double up = back * eye_.SinTilt() + kHalfHeight * eye_.CosTilt();
  const double width = room.width - 2 * (kLinesBeside * room.line + WidestLabel(surface, room));
  const double above = room.top + kLinesAbove * room.line;
  const double height = room.height - above - kLinesBelow * room.line;
  scale_ = std::max(std::min(width / (2 * right), height / (2 * up)), 1.0) * surface.view.zoom;
  middle_ = {room.width / 2, above + height / 2};
}

double SurfaceBox::X(double column) const {
  return (2 * column / static_cast<double>(Columns() - 1) - 1) * kHalfWidth;
}

double SurfaceBox::Y(double row) const {
  return (1 - 2 * row / static_cast<double>(Rows() - 1)) * kHalfDepth;
}

double SurfaceBox::Z(double share) const { return (2 * share - 1) * kHalfHeight; }

double SurfaceBox::ShareOfZ(double z) const { return (z / kHalfHeight + 1) / 2; }

double SurfaceBox::ShareOf(std::size_t row, std::size_t column) const {
  const ChartAxis& axis = surface_.height;
  const double share = (surface_.At(row, column) - axis.min) / (axis.max - axis.min);
  if (std::isfinite(share)) return std::clamp(share, 0.0, 1.0);
  return 0;
}

ScenePoint SurfaceBox::At(double x, double y, double z) const {
  return {middle_.x + eye_.Right(x, y) * scale_, middle_.y - eye_.Up(x, y, z) * scale_};
}

ScenePoint SurfaceBox::AtCell(std::size_t row, std::size_t column) const {
  return At(X(static_cast<double>(column)), Y(static_cast<double>(row)), Z(ShareOf(row, column)));
}

double SurfaceBox::NearX() const {
  if (eye_.Back(1, 0) > 0) return -kHalfWidth;
  return kHalfWidth;
}
double SurfaceBox::NearY() const {
  if (eye_.Back(0, 1) > 0) return -kHalfDepth;
  return kHalfDepth;
}

}  // namespace tarnview
