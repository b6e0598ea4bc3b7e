#include "qt/binder/PictureWidget.h"

#include <QPainter>

#include "qt/Text.h"
#include "qt/chart/LinePen.h"

namespace tarnview {
namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

void PictureWidget::Show(const Drawing& drawing, long backColour) {
  if (drawing == drawing_ && backColour == backColour_) return;
  drawing_ = drawing;
  backColour_ = backColour;
  update();
}

double PictureWidget::TwipsPerPixel() const { return kTwipsPerInch / logicalDpiX(); }

QSize PictureWidget::SizeInTwips() const {
  return QSize(qRound(width() * TwipsPerPixel()), qRound(height() * TwipsPerPixel()));
}

QSize PictureWidget::sizeHint() const {
  const int line = fontMetrics().height();
  return QSize(line * 8, line * 3);
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), backColour_ < 0 ? palette().base() : QBrush(ColourToQt(backColour_)));
  // The colours between button face and shadow do not show on every desktop's ground, light or
  // dark; this does.
  QColor faint = palette().color(QPalette::Text);
  faint.setAlphaF(0.35F);
  painter.setPen(faint);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(1 / TwipsPerPixel(), 1 / TwipsPerPixel());
  const auto pen = [&](const QColor& colour, double pixels) {
    return QPen(colour, pixels * TwipsPerPixel());
  };
  painter.setPen(pen(faint, 1));
  for (const Drawing::Line& line : drawing_.lines)
    painter.drawLine(line.x1, line.y1, line.x2, line.y2);
  for (const Drawing::Stroke& stroke : drawing_.strokes) {
    QPen drawn = PenOf(stroke.pen);
    drawn.setWidthF(drawn.widthF() * TwipsPerPixel());
    painter.setPen(drawn);
    painter.drawLine(stroke.line.x1, stroke.line.y1, stroke.line.x2, stroke.line.y2);
  }
  painter.setPen(pen(palette().color(QPalette::Highlight), 1.5));
  for (const Drawing::Circle& circle : drawing_.circles) {
    painter.setBrush(circle.filled ? palette().brush(QPalette::Highlight) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QPoint(circle.x, circle.y), circle.radius, circle.radius);
  }
}

void PictureWidget::resizeEvent(QResizeEvent*) { emit Resized(); }

}  // namespace tarnview
