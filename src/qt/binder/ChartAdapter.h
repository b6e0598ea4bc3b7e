#pragma once

#include "qt/binder/Adapter.h"
#include "qt/chart/ChartGestures.h"
#include "qt/chart/ChartWidget.h"
#include "qt/chart/SurfaceGestures.h"
#include "ui/Chart.h"

namespace tarnview {

class ChartAdapter : public Adapter {
 public:
  ChartAdapter(Chart& chart, ChartWidget& view, Binder& binder)
      : Adapter(chart, &view, binder),
        chart_(chart),
        view_(view),
        gestures_(*new ChartGestures(view, chart.Wheel.Heard())) {
    OnUser(view, &ChartWidget::PointClicked,
           [this](int place, int point) { chart_.SelectPoint(SeriesAt(place), point); });
    const auto& surface = *new SurfaceGestures(view);
    OnUser(surface, &SurfaceGestures::Turned,
           [this](double right, double up) { chart_.Turn(right, up); });
    OnUser(surface, &SurfaceGestures::Zoomed, [this](double notches) { chart_.Wheel(0, notches); });
    OnUser(surface, &SurfaceGestures::DoubleClicked, [this] { chart_.DblClick(); });
    OnUser(view, &ChartWidget::RightClicked, [this] { chart_.RightClick(); });
    OnUser(gestures_, &ChartGestures::Turned,
           [this](double x, double notches) { chart_.Wheel(x, notches); });
    OnUser(gestures_, &ChartGestures::Marked,
           [this](double x1, double x2) { chart_.Band(x1, x2); });
    OnUser(gestures_, &ChartGestures::Panned,
           [this](double grabbed, double x) { chart_.Pan(grabbed, x); });
    OnUser(gestures_, &ChartGestures::DoubleClicked, [this] { chart_.DblClick(); });
    OnUser(gestures_, &ChartGestures::PointedAt, [this](double x) { chart_.Hover(x); });
    OnUser(gestures_, &ChartGestures::PointerLeft, [this] { chart_.HoverEnd(); });
  }

 protected:
  void ShowContent() override {
    view_.SetDescription(chart_.Data());
    ShowSelection();
  }
  void ShowSelection() override {
    view_.Select(PlaceOf(chart_.SelectedSeries()), chart_.SelectedPoint());
    view_.ShowLabels(chart_.Labels);
    gestures_.ShowHairLine(chart_.HairLine);
  }

 private:
  /// A curve at place j owns the chart's series 2j + 1; a row of a surface is a series of its own.
  int SeriesAt(int place) const {
    if (view_.ShowsSurface()) return place + 1;
    return 2 * place + 1;
  }
  int PlaceOf(int series) const {
    if (series < 1) return -1;
    if (view_.ShowsSurface()) return series - 1;
    return (series - 1) / 2;
  }

  Chart& chart_;
  ChartWidget& view_;
  ChartGestures& gestures_;  ///< the view's
};

}  // namespace tarnview
