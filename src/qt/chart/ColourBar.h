#pragma once

#include <qcustomplot.h>

#include "qt/chart/ChartColours.h"

namespace tarnview {

/// The scale of a third item's colours, with its numbers and title, in the last column of a chart.
class ColourBar {
 public:
  explicit ColourBar(QCustomPlot& plot) : plot_(plot) {}

  /// Puts the bar beside the chart, or takes it away.
  void Show(bool shown, const ChartAxis& axis);
  /// The axis with the numbers; null while there is no bar.
  QCPAxis* Axis() const {
    if (scale_) return scale_->axis();
    return nullptr;
  }
  int Length() const {
    if (scale_) return scale_->rect().height();
    return 0;
  }
  void SetWidth(int pixels);

 private:
  QCustomPlot& plot_;
  QPointer<QCPColorScale> scale_;  ///< the layout's
};

}  // namespace tarnview
