#include "qt/icons/DesktopStyle.h"

#include <QComboBox>
#include <QPainter>
#include <QStyleOption>

namespace tarnview {
namespace {

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

/// The square of an indicator, with pen and brush set for its rim and what it holds.
QRectF BeginIndicator(const QStyleOption& option, QPainter& painter) {
  QColor rim = option.palette.color(QPalette::Text);
  rim.setAlphaF(0.5f);
  const qreal side = qMin(option.rect.width(), option.rect.height()) - 2.0;
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(option.rect).center());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(rim, 1));
  painter.setBrush(option.palette.color(QPalette::Base));
  return box;
}

void DrawRadioButton(const QStyleOption& option, QPainter& painter) {
  painter.save();
  const QRectF circle = BeginIndicator(option, painter);
  painter.drawEllipse(circle);
  if (option.state & QStyle::State_On) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Text));
    painter.drawEllipse(circle.center(), circle.width() / 4, circle.width() / 4);
  }
  painter.restore();
}

void DrawCheckBox(const QStyleOption& option, QPainter& painter) {
  const QColor ink = option.palette.color(QPalette::Text);
  painter.save();
  const QRectF box = BeginIndicator(option, painter);
  const qreal side = box.width();
  painter.drawRoundedRect(box, 2, 2);
  painter.setPen(QPen(ink, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const auto at = [&](qreal x, qreal y) { return box.topLeft() + QPointF(x, y) * side; };
  if (option.state & QStyle::State_On)
    painter.drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.72), at(0.76, 0.28)});
  else if (option.state & QStyle::State_NoChange)
    painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
  painter.restore();
}

}  // namespace

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const bool checkBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
  const bool ours = IsDark(option->palette) && baseStyle()->name() == QLatin1String("fusion");
  if (ours && checkBox)
    DrawCheckBox(*option, *painter);
  else if (ours && element == PE_IndicatorRadioButton)
    DrawRadioButton(*option, *painter);
  else
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const auto* box = control == CC_ComboBox ? qobject_cast<const QComboBox*>(widget) : nullptr;
  if (!box || !box->isEditable() || box->count() > 0)
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  QStyleOptionFrame field;
  field.QStyleOption::operator=(*option);
  field.lineWidth = pixelMetric(PM_DefaultFrameWidth, option, widget);
  field.state |= State_Sunken;
  drawPrimitive(PE_PanelLineEdit, &field, painter, widget);
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
  if (hint == SH_EtchDisabledText) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace tarnview
