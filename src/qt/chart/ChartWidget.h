#pragma once

#include <qcustomplot.h>

#include <vector>

#include "qt/chart/CurveLine.h"
#include "ui/ChartDescription.h"

namespace tarnview {

/// Draws a chart's description and nothing else. Places of curves count from 0, points from 1.
class ChartWidget : public QCustomPlot {
  Q_OBJECT
 public:
  explicit ChartWidget(QWidget* parent = nullptr);

  void SetDescription(const ChartDescription& description);
  /// Marks a point with a ring and a line through all curves; a place or point that is not there takes the mark away.
  void Select(int place, int point);

  /// Draws the chart on any device, `width` by `height` in the painter's units.
  void Paint(QCPPainter& painter, int width, int height);

 signals:
  void PointClicked(int place, int point);
  void RightClicked();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void MakeLegendColumn();
  void MakeMark();
  void ApplyColours();
  void ApplyFonts();
  void MakeCurves();
  /// What depends on the size: numbers that fit, legend columns, points that the pixels can show.
  void Fit(const QRect& viewport);
  void FitNumbers();
  void FitLegend();
  void ShowMark();

  ChartDescription chart_;
  std::vector<CurveLine*> curves_;  ///< one for each series
  QCPLayoutGrid* legendColumn_ = nullptr;
  QCPItemStraightLine* line_ = nullptr;
  QCPItemTracer* ring_ = nullptr;
  int selectedPlace_ = -1;
  int selectedPoint_ = 0;
  bool drawn_ = false;
};

/// Line width in pixels of a pen's width (10 to 50): 1 to 3.
double PixelsOfPen(int width);

}  // namespace tarnview
