#include "qt/chart/LinePen.h"

#include <algorithm>

#include "qt/Text.h"

namespace tarnview {
namespace {

Qt::PenStyle StyleOf(int style) {
  if (style == 1) return Qt::SolidLine;
  if (style == 2) return Qt::DotLine;
  return Qt::DashLine;
}

}  // namespace

double PixelsOfPen(int width) { return std::clamp(1 + (width - 10) / 20.0, 1.0, 3.0); }

QPen PenOf(const Pen& pen) {
  QPen line(ColourToQt(pen.colour), PixelsOfPen(pen.width), StyleOf(pen.style));
  line.setCapStyle(pen.style == 1 ? Qt::RoundCap : Qt::FlatCap);
  line.setJoinStyle(Qt::BevelJoin);
  return line;
}

}  // namespace tarnview
