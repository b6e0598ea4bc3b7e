#pragma once

#include <qcustomplot.h>

#include <vector>

#include "qt/chart/ColourBar.h"
#include "qt/chart/CurveLine.h"
#include "qt/chart/MarkLabels.h"
#include "qt/chart/PointCloudPlot.h"
#include "qt/chart/SurfacePlot.h"
#include "ui/ChartDescription.h"

namespace tarnview {

/// Draws a chart's description and nothing else. Places of curves count from 0, points from 1; a
/// cloud has place 0. Of a surface, place is the row from 0 and point the column from 1.
class ChartWidget : public QCustomPlot {
  Q_OBJECT
 public:
  explicit ChartWidget(QWidget* parent = nullptr);

  /// Small: a legend with long names must not widen the window.
  QSize minimumSizeHint() const override { return {200, 150}; }

  void SetDescription(const ChartDescription& description);
  /// Marks a point with a ring and a line through all curves; a place or point that is not there
  /// takes the mark away.
  void Select(int place, int point);
  /// False while it ends: its base still sends events, and what is this class's own is gone.
  static bool IsWhole(const QObject* receiver) {
    return qobject_cast<const ChartWidget*>(receiver) != nullptr;
  }
  bool ShowsSurface() const { return surface_ != nullptr; }
  /// Labels where the pointer's line meets the curves; shown with the next RedrawMarks.
  void ShowLabels(std::vector<ChartMark> labels) { pointed_->SetMarks(std::move(labels)); }
  /// Draws what lies over the curves anew, and the curves not.
  void RedrawMarks();
  /// Tells the point nearest to a pixel as clicked on; of a cloud, if it is near.
  void ClickAt(QPointF pixel);

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
  void MakeCloud();
  void MakeSurface();
  /// What depends on the size: numbers that fit, legend columns, points that the pixels can show.
  void Fit(const QRect& viewport);
  void FitNumbers();
  void FitTitles();
  void FitLegend();
  void ShowMark();
  /// The marked point in the axes' units; none where nothing is marked.
  std::optional<QPointF> MarkedPoint() const;

  ChartDescription chart_;
  std::vector<CurveLine*> curves_;   ///< one for each series
  PointCloudPlot* cloud_ = nullptr;  ///< null for curves
  SurfacePlot* surface_ = nullptr;   ///< null for another kind
  SurfaceMark* surfaceMark_ = nullptr;
  ColourBar bar_{*this};
  QCPLayoutGrid* legendColumn_ = nullptr;
  QCPItemStraightLine* line_ = nullptr;
  QCPItemStraightLine* across_ = nullptr;  ///< the other line of a cloud's mark
  QCPItemTracer* ring_ = nullptr;
  MarkLabels* marks_ = nullptr;    ///< of the description
  MarkLabels* pointed_ = nullptr;  ///< at the pointer
  int selectedPlace_ = -1;
  int selectedPoint_ = 0;
  bool drawn_ = false;  ///< the description that is shown now
};

}  // namespace tarnview
