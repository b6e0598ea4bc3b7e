#pragma once

#include <QProxyStyle>

namespace tarnview {

/// The desktop's style, fit for a dark palette too, where the toolkit's own style draws the rim of
/// a check box and an option button as dark as what lies behind it, and grey texts twice. A box
/// with nothing to drop down looks like a plain field.
class DesktopStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

}  // namespace tarnview
