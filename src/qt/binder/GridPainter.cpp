#include "qt/binder/GridPainter.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "qt/Text.h"
#include "qt/chart/ChartColours.h"

namespace tarnview {
namespace {

/// Raised and lowered, told apart by every kind of eye (Okabe and Ito, 2008), on a light and on a
/// dark desktop.
struct MarkColours {
  QRgb onLight, onDark;
};
constexpr MarkColours kRaised{0xFFD55E00, 0xFFE69F00};
constexpr MarkColours kLowered{0xFF0072B2, 0xFF56B4E9};

/// Behind what is worked out and not entered; it would glare on a dark desktop.
constexpr Colour kGrey = 0xE0E0E0;

/// Of 255: below, a text is hard to read.
constexpr int kReadable = 90;
constexpr double kMarkedTint = 0.18;
constexpr double kSelectedTint = 0.3;
constexpr double kLighter = 0.35;
/// The luminance at which black and white contrast alike (WCAG 2.1, relative luminance).
constexpr double kBlackReadsBetter = 0.179;

bool IsDark(const QColor& colour) { return qGray(colour.rgb()) < 128; }

double Luminance(const QColor& colour) {
  const auto light = [](double part) {
    if (part <= 0.04045) return part / 12.92;
    return std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) +
         0.0722 * light(colour.blueF());
}

QColor Of(const MarkColours& colours, bool dark) {
  return QColor(dark ? colours.onDark : colours.onLight);
}

const MarkColours* ColoursOf(GridCell::Mark mark) {
  switch (mark) {
    case GridCell::Mark::Raised:
      return &kRaised;
    case GridCell::Mark::Lowered:
      return &kLowered;
    case GridCell::Mark::None:
      break;
  }
  return nullptr;
}

}  // namespace

void GridPainter::Text(const QRect& place, const std::string& text, const QColor& colour) const {
  if (text.empty()) return;
  painter_.setPen(colour);
  const int room = painter_.fontMetrics().height() / 3;
  painter_.drawText(place.adjusted(1, 0, -room, 0), Qt::AlignRight | Qt::AlignVCenter, ToQt(text));
}

void GridPainter::Heading(const QRect& place, const std::string& text, bool lit) const {
  QColor face = palette_.color(QPalette::Button);
  if (lit) face = Mix(face, palette_.color(QPalette::Highlight), kSelectedTint);
  painter_.fillRect(place, face);
  Text(place, text, palette_.color(QPalette::ButtonText));
}

QColor GridPainter::BackOf(const GridCell& cell) const {
  if (cell.backColour == kGrey && IsDark(palette_.color(QPalette::Base)))
    return palette_.color(QPalette::Button);
  if (cell.backColour != kDesktopColour) return ColourToQt(cell.backColour);
  const QColor base = palette_.color(cell.locked ? QPalette::Button : QPalette::Base);
  const MarkColours* mark = ColoursOf(cell.mark);
  if (mark) return Mix(base, Of(*mark, IsDark(base)), kMarkedTint);
  return base;
}

/// A text that would vanish on what is behind it is drawn in black or white; red on a dark desktop
/// is lighter; what cannot be used now is grey.
QColor GridPainter::TextOf(const GridCell& cell, const QColor& back) const {
  QColor wanted = palette_.color(QPalette::Text);
  if (cell.colour != kDesktopColour) wanted = ColourToQt(cell.colour);
  if (palette_.currentColorGroup() == QPalette::Disabled) return palette_.color(QPalette::Text);
  if (wanted.hsvSaturation() > 128) return IsDark(back) ? Mix(wanted, Qt::white, kLighter) : wanted;
  if (cell.backColour == kDesktopColour &&
      std::abs(qGray(wanted.rgb()) - qGray(back.rgb())) >= kReadable)
    return wanted;
  if (Luminance(back) < kBlackReadsBetter) return Qt::white;
  return Qt::black;
}

void GridPainter::Cell(const QRect& place, const GridCell& cell, bool selected) const {
  if (cell.blackedOut) {
    painter_.fillRect(place, Qt::black);
    painter_.fillRect(place, QBrush(QColor(0x60, 0x60, 0x60), Qt::BDiagPattern));
    return;
  }
  QColor back = BackOf(cell);
  const QColor light =
      palette_.color(active_ ? QPalette::Active : QPalette::Inactive, QPalette::Highlight);
  if (selected) back = Mix(back, light, active_ ? kSelectedTint : kSelectedTint / 2);
  painter_.fillRect(place, back);
  Mark(place, cell.mark);
  Text(place, cell.text, TextOf(cell, back));
}

/// In the corner away from the number: above for raised, below for lowered.
void GridPainter::Mark(const QRect& place, GridCell::Mark mark) const {
  const MarkColours* colours = ColoursOf(mark);
  if (!colours) return;
  const double side = place.height() / 3.0;
  const bool raised = mark == GridCell::Mark::Raised;
  const QRectF at(place);
  const QPointF corner = raised ? at.topLeft() : at.bottomLeft();
  const QPointF along(corner.x() + side, corner.y());
  const QPointF away(corner.x(), raised ? corner.y() + side : corner.y() - side);
  painter_.setRenderHint(QPainter::Antialiasing, true);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(Of(*colours, IsDark(palette_.color(QPalette::Base))));
  painter_.drawPolygon(QPolygonF{corner, along, away});
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void GridPainter::Current(const QRect& place) const {
  painter_.setBrush(Qt::NoBrush);
  painter_.setPen(QPen(palette_.color(QPalette::Highlight), active_ ? 2 : 1));
  painter_.drawRect(active_ ? place.adjusted(1, 1, 0, 0) : place.adjusted(0, 0, -1, -1));
}

void GridPainter::Ring(const QPointF& centre, double radius) const {
  painter_.setRenderHint(QPainter::Antialiasing, true);
  painter_.setBrush(Qt::NoBrush);
  // A line on a wider one of the opposite colour is seen on every colour; numbers shine through.
  QColor line = palette_.color(QPalette::Text), under = palette_.color(QPalette::Base);
  line.setAlphaF(0.8F);
  under.setAlphaF(0.7F);
  for (const QPen& pen : {QPen(under, 3.5), QPen(line, 1.5)}) {
    painter_.setPen(pen);
    painter_.drawEllipse(centre, radius, radius);
  }
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace tarnview
