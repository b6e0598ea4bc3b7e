#include "qt/chart/ColourBar.h"

#include "qt/chart/AxisRange.h"
#include "qt/chart/PointShades.h"
#include "ui/HeatColours.h"

namespace tarnview {
namespace {

QCPColorGradient Gradient() {
  QCPColorGradient gradient;
  gradient.clearColorStops();
  const auto steps = static_cast<int>(kHeatColours.size()) - 1;
  for (int i = 0; i <= steps; ++i) {
    const double share = static_cast<double>(i) / steps;
    gradient.setColorStopAt(share, HeatColour(share));
  }
  return gradient;
}

}  // namespace

void ColourBar::Show(bool shown, const ChartAxis& axis) {
  if (shown && !scale_) {
    scale_ = new QCPColorScale(&plot_);
    plot_.plotLayout()->addElement(0, 2, scale_);
    scale_->setType(QCPAxis::atRight);
    scale_->setGradient(Gradient());
    scale_->setRangeDrag(false);
    scale_->setRangeZoom(false);
    auto* group = new QCPMarginGroup(&plot_);
    for (QCPLayoutElement* one : std::initializer_list<QCPLayoutElement*>{scale_, plot_.axisRect()})
      one->setMarginGroup(QCP::msTop | QCP::msBottom, group);
    Axis()->setTicker(QSharedPointer<QCPAxisTickerText>::create());
    Axis()->setSubTicks(false);
    Axis()->setTickLength(0, 4);
  } else if (!shown && scale_) {
    QPointer<QCPMarginGroup> group = scale_->marginGroup(QCP::msTop);
    plot_.plotLayout()->remove(scale_);
    plot_.plotLayout()->simplify();
    delete group;
  }
  if (scale_) scale_->setDataRange(RangeOf(axis));
}

void ColourBar::SetWidth(int pixels) {
  if (scale_) scale_->setBarWidth(pixels);
}

}  // namespace tarnview
