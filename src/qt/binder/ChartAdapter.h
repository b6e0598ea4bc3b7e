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
    connect(&view, &ChartWidget::PointClicked, this,
            [this](int place, int point) { chart_.SelectPoint(SeriesAt(place), point); });
    const auto& surface = *new SurfaceGestures(view);
    connect(&surface, &SurfaceGestures::Turned, this, [this](double right, double up) { chart_.Turn(right, up); });
    connect(&surface, &SurfaceGestures::Zoomed, this, [this](double notches) { chart_.Wheel(0, notches); });
    connect(&surface, &SurfaceGestures::DoubleClicked, this, [this] { chart_.DblClick(); });
    connect(&view, &ChartWidget::RightClicked, this, [this] { chart_.RightClick(); });
    connect(&gestures_, &ChartGestures::Turned, this, [this](double x, double notches) { chart_.Wheel(x, notches); });
    connect(&gestures_, &ChartGestures::Marked, this, [this](double x1, double x2) { chart_.Band(x1, x2); });
    connect(&gestures_, &ChartGestures::Panned, this, [this](double grabbed, double x) { chart_.Pan(grabbed, x); });
    connect(&gestures_, &ChartGestures::DoubleClicked, this, [this] { chart_.DblClick(); });
    connect(&gestures_, &ChartGestures::PointedAt, this, [this](double x) { chart_.Hover(x); });
    connect(&gestures_, &ChartGestures::PointerLeft, this, [this] { chart_.HoverEnd(); });
  }

 protected:
  void ShowContent() override {
    view_.SetDescription(chart_.Data());
    ShowSelection();
  }
  void ShowSelection() override {
    view_.Select(PlaceOf(chart_.SelectedSeries()), chart_.SelectedPoint());
    gestures_.ShowHairLine(chart_.HairLine);
  }

 private:
  /// A curve at place j owns the chart's series 2j + 1; a row of a surface is a series of its own.
  int SeriesAt(int place) const { return view_.ShowsSurface() ? place + 1 : 2 * place + 1; }
  int PlaceOf(int series) const {
    if (series < 1) return -1;
    return view_.ShowsSurface() ? series - 1 : (series - 1) / 2;
  }

  Chart& chart_;
  ChartWidget& view_;
  ChartGestures& gestures_;  ///< the view's
};

}  // namespace tarnview
