#include "qt/binder/PictureWidget.h"

#include <QPainter>

namespace tarnview {
namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

void PictureWidget::SetDrawing(const Drawing& drawing) {
  if (drawing == drawing_) return;
  drawing_ = drawing;
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
  painter.fillRect(rect(), palette().base());
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(1 / TwipsPerPixel(), 1 / TwipsPerPixel());
  const auto pen = [&](QPalette::ColorRole role, double pixels) {
    return QPen(palette().color(role), pixels * TwipsPerPixel());
  };
  // The button face itself would not show on every desktop's white.
  painter.setPen(pen(QPalette::Mid, 1));
  for (const Drawing::Line& line : drawing_.lines) painter.drawLine(line.x1, line.y1, line.x2, line.y2);
  painter.setPen(pen(QPalette::Highlight, 1.5));
  for (const Drawing::Circle& circle : drawing_.circles) {
    painter.setBrush(circle.filled ? palette().brush(QPalette::Highlight) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QPoint(circle.x, circle.y), circle.radius, circle.radius);
  }
}

void PictureWidget::resizeEvent(QResizeEvent*) { emit Resized(); }

}  // namespace tarnview
